#include "values/PxPageTypeList.h"

PxPageTypeList::PxPageTypeList(const QList<PxPageType> &pageTypes) : QList<PxPageType>(pageTypes) {}

PxPageTypeList::PxPageTypeList(const QList<PxPageTypeEnum> &pageTypes)
{
    appendEnum(pageTypes);
}

PxPageTypeList::PxPageTypeList(const QString &keywords)
{
    pxForEachPart(keywords,
                  [this](QStringView part) { append(PxPageType(part.trimmed().toString())); });
}

PxPageTypeList::PxPageTypeList(const PxPageTypeList &other) = default;
PxPageTypeList &PxPageTypeList::operator=(const PxPageTypeList &other) = default;
PxPageTypeList::~PxPageTypeList() = default;

void PxPageTypeList::appendEnum(const QList<PxPageTypeEnum> &pageTypes)
{
    reserve(size() + pageTypes.size());
    for (PxPageTypeEnum pageType : pageTypes)
        append(PxPageType(pageType));
}
