#pragma once

#include <PxProductType.h>

class PxJsonLine;
class PxProductTypeConfigRegistry;

/**
 * Everything that the library knows about one product with any of its page counts.
 *
 * The members are those of the report of one page count. Values that change with the page count
 * are a table. Where pages have numbers, these are described for all page counts at once.
 */
class PxExportedProduct
{
public:
    /** The largest page of which surroundings and redirects are exported. */
    static constexpr int maximumPages = 10000;

    static void addTo(PxJsonLine *line, const PxProductTypeConfigRegistry *registry,
                      const PxProductType &type);
};
