#include "geometry/PxProductionExtraPageGroupList.h"

#include <QDomElement>
#include <QString>

PxProductionExtraPageGroupList::PxProductionExtraPageGroupList(
    const QDomElement &extraProductionPages)
{
    const QString tag = QStringLiteral("item");
    for (QDomElement e = extraProductionPages.firstChildElement(tag); !e.isNull();
         e = e.nextSiblingElement(tag))
        append(PxProductionExtraPageGroup(e));
}
