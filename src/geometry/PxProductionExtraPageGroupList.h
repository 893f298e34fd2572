#pragma once

#include "geometry/PxProductionExtraPageGroup.h"

#include <QList>

class QDomElement;

/** The extra pages of a product, in the order of its file. */
class PXPRODUCTPROPERTIES_EXPORT PxProductionExtraPageGroupList
    : public QList<PxProductionExtraPageGroup>
{
public:
    PxProductionExtraPageGroupList() = default;
    /** Reads the "item" children of the "extra_production_pages" element. */
    explicit PxProductionExtraPageGroupList(const QDomElement &extraProductionPages);
};
