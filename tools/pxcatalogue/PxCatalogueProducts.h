#pragma once

#include <PxProductTypeList.h>

#include <QJsonArray>
#include <QStringList>

/** Which products there are: those of the product types that have a product file. */
class PxCatalogueProducts
{
public:
    /** By class, then by name. */
    static PxProductTypeList current();
    /** The names of the current products and of the legacy ones. */
    static QStringList names();

    static bool isCurrent(const PxProductType &type);
    static bool isLegacy(const PxProductType &type);

    /** The keyword of its class. */
    static QString className(const PxProductType &type);
    /** By class, then by name: the library answers in the order of a hash. */
    static PxProductTypeList sorted(PxProductTypeList types);
    /** The names, in that order. */
    static QJsonArray nameArray(const PxProductTypeList &types);
};
