#pragma once

#include "themes/PxThematicCategory.h"

#include <QList>

/** Thematic categories in the order in which they are offered. */
class PXPRODUCTPROPERTIES_EXPORT PxThematicCategoryList : public QList<PxThematicCategory>
{
public:
    PxThematicCategoryList() = default;
    /** The same categories. */
    PxThematicCategoryList(const QList<PxThematicCategory> &categories);
};
