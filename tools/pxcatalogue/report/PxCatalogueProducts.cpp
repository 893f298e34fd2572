#include "report/PxCatalogueProducts.h"

#include "check/words/PxListedProductTypes.h"
#include "format/PxCatalogueKeywords.h"

#include <PxProductProperties.h>

#include <algorithm>
#include <tuple>

namespace {

bool hasFile(const PxProductTypeConfigRegistry *registry, const PxProductType &type)
{
    // All types without a file share the description of the unknown type.
    return registry->description(type) != registry->description(PxProductType());
}

} // namespace

PxProductTypeList PxCatalogueProducts::of(const PxProductTypeConfigRegistry *registry)
{
    return sorted(of(registry, PxListedProductTypes(false).types()));
}

PxProductTypeList PxCatalogueProducts::of(const PxProductTypeConfigRegistry *registry,
                                          const PxProductTypeList &types)
{
    PxProductTypeList products;
    for (const PxProductType &type : types) {
        if (hasFile(registry, type))
            products.append(type);
    }
    return products;
}

QStringList PxCatalogueProducts::names()
{
    QStringList names;
    for (const auto *registry :
         {PxProductTypeConfigRegistry::instance(), PxProductTypeConfigRegistry::legacyInstance()}) {
        for (const PxProductType &type : of(registry))
            names.append(type.productName());
    }
    names.removeDuplicates();
    return names;
}

bool PxCatalogueProducts::isCurrent(const PxProductType &type)
{
    return hasFile(PxProductTypeConfigRegistry::instance(), type);
}

bool PxCatalogueProducts::isLegacy(const PxProductType &type)
{
    return hasFile(PxProductTypeConfigRegistry::legacyInstance(), type);
}

bool PxCatalogueProducts::isOffered(const PxProductTypeConfigRegistry *registry,
                                    const PxProductType &type)
{
    return registry == PxProductTypeConfigRegistry::instance() && registry->exists(type);
}

QString PxCatalogueProducts::className(const PxProductType &type)
{
    return keywordsOf(type.productClass(), productClassKeywords).join(", ");
}

PxProductTypeList PxCatalogueProducts::sorted(PxProductTypeList types)
{
    std::sort(types.begin(), types.end(), [](const PxProductType &a, const PxProductType &b) {
        return std::make_tuple(a.productClass(), a.productName()) <
               std::make_tuple(b.productClass(), b.productName());
    });
    return types;
}

QJsonArray PxCatalogueProducts::nameArray(const PxProductTypeList &types)
{
    QJsonArray names;
    for (const PxProductType &type : sorted(types))
        names.append(type.productName());
    return names;
}
