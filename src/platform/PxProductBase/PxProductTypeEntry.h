#pragma once

#include "PxProductClass.h"
#include "PxProductTypeEnum.h"

#include <QString>

/** What the catalogue knows of one product type. */
struct PxProductTypeEntry
{
    PxProductTypeEnum type = PxProductTypeUnknown;
    PxProductClass productClass = PxProductClassUnknown;
    /** As it is written in the catalogue; product types are found by it in any case. */
    QString name;
    /** The name where space is short. */
    QString shortName;
};
