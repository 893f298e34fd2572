#pragma once

#include <PxProductType.h>

#include <QJsonObject>

class PxProductTypeConfigRegistry;

/**
 * Everything that the library knows about one product with any of its page counts.
 *
 * The members are those of the report of one page count. A value that changes with the page count
 * is a table instead: an array with an object for each run of page counts that have the same value.
 * Whatever numbers single pages is described without a page count.
 */
class PxExportedProduct
{
public:
    /** The largest page of which surroundings and redirects are exported. */
    static constexpr int maximumPages = 10000;

    static QJsonObject of(const PxProductTypeConfigRegistry *registry, const PxProductType &type);
};
