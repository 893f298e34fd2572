#include "values/PxPageTypeList.h"

#include <QStringView>

PxPageTypeList::PxPageTypeList(const QList<PxPageType> &pageTypes) : QList<PxPageType>(pageTypes) {}

PxPageTypeList::PxPageTypeList(const QList<PxPageTypeEnum> &pageTypes)
{
    appendEnum(pageTypes);
}

PxPageTypeList::PxPageTypeList(const QString &keywords)
{
    const auto *table = PxPageType().enumToStringTable();
    int undecodable = 0;
    pxForEachPart(keywords, [&](QStringView part) {
        append(table->decodeCSV(pxPartText(keywords, part.trimmed()), undecodable));
    });
    table->reportMoreUndecodable(undecodable);
}

PxPageTypeList::PxPageTypeList(const PxPageTypeList &other) = default;
PxPageTypeList &PxPageTypeList::operator=(const PxPageTypeList &other) = default;
PxPageTypeList::~PxPageTypeList() = default;

void PxPageTypeList::appendEnum(const QList<PxPageTypeEnum> &pageTypes)
{
    for (PxPageTypeEnum pageType : pageTypes)
        append(PxPageType(pageType));
}
