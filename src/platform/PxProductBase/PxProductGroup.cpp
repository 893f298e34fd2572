#include "PxProductGroup.h"

#include <QDebug>

PxProductGroup::PxProductGroup(const QString &keyword)
    : m_value(EnumHelper::decodeKeyword(keyword, EnumHelper::globalMapProductGroupEnumString,
                                        EnumHelper::globalProductGroupEnumDefaultValue))
{}

QDebug operator<<(QDebug debug, const PxProductGroup &group)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxProductGroup(" << int(group.value()) << ", "
                           << EnumHelper::encodeKeyword(
                                  group.value(), EnumHelper::globalMapProductGroupEnumString,
                                  EnumHelper::globalProductGroupEnumDefaultKey)
                           << ')';
}
