#pragma once

#include <PxProductTypeList.h>

class PxProductTypeConfigRegistry;
class PxReport;

/** Products below each other, with what distinguishes them. */
class PxProductTable
{
public:
    /** The registry describes them. */
    static void addTo(PxReport *report, const PxProductTypeConfigRegistry *registry,
                      const PxProductTypeList &products);
};
