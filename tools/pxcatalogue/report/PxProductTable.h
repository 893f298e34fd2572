#pragma once

#include <PxProductTypeList.h>

class PxProductTypeConfigRegistry;
class PxReport;

/** A table of products. */
class PxProductTable
{
public:
    /** The products must be those of the registry. */
    static void addTo(PxReport *report, const PxProductTypeConfigRegistry *registry,
                      const PxProductTypeList &products);
};
