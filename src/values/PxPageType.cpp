#include "values/PxPageType.h"

template class PxEnumWrapper<PxPageTypeEnum>;

PxPageType::PxPageType(const QString &keywords)
{
    setValue(keywords);
}

PxPageType::PxPageType(const PxPageType &other) = default;
PxPageType &PxPageType::operator=(const PxPageType &other) = default;
PxPageType::~PxPageType() = default;

void PxPageType::expandTo(const PxPageTypeEnum &value)
{
    *this |= PxPageType(value);
}

void PxPageType::expandTo(const QString &keywords)
{
    *this |= PxPageType(keywords);
}

void PxPageType::fillTable(PxEnumToStringTable<PxPageTypeEnum> *table) const
{
    table->insert(ourKeywords);
    table->setDefaultValue(PxPageTypeNone);
}
