#pragma once

#include <PxProductTypeList.h>

#include <QJsonArray>
#include <QStringList>

class PxProductTypeConfigRegistry;

/** The products of a catalogue: the product types that have a product file. */
class PxCatalogueProducts
{
public:
    /** Sorted by class and name, including those not on offer because they have no size. */
    static PxProductTypeList of(const PxProductTypeConfigRegistry *registry);
    /** Those of the types that have a file. */
    static PxProductTypeList of(const PxProductTypeConfigRegistry *registry,
                                const PxProductTypeList &types);
    /** The names of all current and legacy products. */
    static QStringList names();

    static bool isCurrent(const PxProductType &type);
    static bool isLegacy(const PxProductType &type);
    /** Products of earlier catalogues are never on offer. */
    static bool isOffered(const PxProductTypeConfigRegistry *registry, const PxProductType &type);

    /** The keyword of the product class. */
    static QString className(const PxProductType &type);
    /** Sorts by class and name, because the library returns products in the order of a hash. */
    static PxProductTypeList sorted(PxProductTypeList types);
    /** The names in the order of sorted(). */
    static QJsonArray nameArray(const PxProductTypeList &types);
};
