#pragma once

#include "PxProductClass.h"
#include "PxProductTypeEnum.h"

#include <QString>

/** What the catalogue knows of one product type. */
struct PxProductTypeEntry
{
    PxProductTypeEnum type = PxProductTypeUnknown;
    PxProductClass productClass = PxProductClassUnknown;
    /** The name as the catalogue spells it; look-ups ignore the case. */
    QString name;
    /** A shorter name, for places with little space. */
    QString shortName;
};
