#include "PxProductGroup.h"

PxProductGroup::PxProductGroup(const QString &keyword)
    : m_value(EnumHelper::decodeKeyword(keyword, EnumHelper::globalMapProductGroupEnumString,
                                        EnumHelper::globalProductGroupEnumDefaultValue))
{}
