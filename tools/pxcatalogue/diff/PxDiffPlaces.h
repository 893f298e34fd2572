#pragma once

#include "diff/PxExportedCatalogue.h"

struct PxDiff;

/** Adds to changes where in the new catalogue, which this process holds, their values come from. */
class PxDiffPlaces
{
public:
    static void addTo(PxDiff *diff, const PxExportedCatalogue &newCatalogue);
};
