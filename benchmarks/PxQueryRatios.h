#pragma once

#include "PxRatio.h"

#include <description/PxProductTypeConfigRegistry.h>

#include <vector>

/** What answers cost beside the least that each could cost. */
class PxQueryRatios
{
public:
    /** The library has been told where a catalogue of generated products is. */
    PxQueryRatios();

    std::vector<PxRatio> ratios() const;
    /** Compatible products, per product of a registry, beside a bare walk of the same table. */
    PxRatio compatibleProducts(const char *name, const PxProductTypeConfigRegistry &registry,
                               const QHash<PxProductType, PxProductTypeDescription *> &table) const;
    /** Of a hit. */
    double nanosecondsPerDefaultTemplate() const;

private:
    PxProductType m_book;
    const PxProductTypeDescription *m_description; // of the book
};
