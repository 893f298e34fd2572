#pragma once

#include <PxProductTypeList.h>

#include <QJsonArray>
#include <QStringList>

class PxProductTypeConfigRegistry;

/** Which products there are: those of the product types that have a product file. */
class PxCatalogueProducts
{
public:
    /** Those of a registry, by class, then by name; also what is not on offer, as it has no size.
     */
    static PxProductTypeList of(const PxProductTypeConfigRegistry *registry);
    /** The names of the current products and of the legacy ones. */
    static QStringList names();

    static bool isCurrent(const PxProductType &type);
    static bool isLegacy(const PxProductType &type);
    /** Products of earlier catalogues are never on offer. */
    static bool isOffered(const PxProductTypeConfigRegistry *registry, const PxProductType &type);

    /** The keyword of its class. */
    static QString className(const PxProductType &type);
    /** By class, then by name: the library answers in the order of a hash. */
    static PxProductTypeList sorted(PxProductTypeList types);
    /** The names, in that order. */
    static QJsonArray nameArray(const PxProductTypeList &types);
};
