#include "themes/PxThematicCategoryList.h"

PxThematicCategoryList::PxThematicCategoryList(const QList<PxThematicCategory> &categories)
    : QList<PxThematicCategory>(categories)
{}
