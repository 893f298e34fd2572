#pragma once

#include "PxRatio.h"

#include <description/PxProductTypeConfigRegistry.h>

#include <vector>

/** The cost of queries in relation to the least that they could cost. */
class PxQueryRatios
{
public:
    /** Set the directories of a generated catalogue in the library first. */
    PxQueryRatios();

    std::vector<PxRatio> ratios() const;
    /**
     * The time per product to find compatible products in a registry, in relation to a plain loop
     * over the same table.
     */
    PxRatio compatibleProducts(const char *name, const PxProductTypeConfigRegistry &registry,
                               const QHash<PxProductType, PxProductTypeDescription *> &table) const;
    /** The time for a key that has a default template. */
    double nanosecondsPerDefaultTemplate() const;

private:
    PxProductType m_book;
    const PxProductTypeDescription *m_description; // of a book
};
