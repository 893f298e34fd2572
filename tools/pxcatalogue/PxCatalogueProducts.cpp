#include "PxCatalogueProducts.h"

#include "PxCatalogueKeywords.h"

#include <PxProductProperties.h>

#include <algorithm>
#include <tuple>

namespace {

/** The library finds a product type by its name, but does not list the names. */
PxProductTypeList knownTypes()
{
    PxProductTypeList types;
    const QDomElement catalogue = PxXMLLoader::loadDocumentElement(
        PxDirectoryConfig::instance()->resource(QStringLiteral("producttypes.xml"), false));
    const QString tag = QStringLiteral("producttype");
    for (QDomElement row = catalogue.firstChildElement(tag); !row.isNull();
         row = row.nextSiblingElement(tag)) {
        const PxProductType type(row.attribute(QStringLiteral("name")));
        if (type.isValid())
            types.append(type);
    }
    // A name that stands there twice is the same type both times.
    std::sort(types.begin(), types.end());
    types.erase(std::unique(types.begin(), types.end()), types.end());
    return types;
}

bool hasFile(const PxProductTypeConfigRegistry *registry, const PxProductType &type)
{
    // All types without a file share the description of the unknown type.
    return registry->description(type) != registry->description(PxProductType());
}

} // namespace

PxProductTypeList PxCatalogueProducts::current()
{
    PxProductTypeList types;
    for (const PxProductType &type : knownTypes()) {
        if (isCurrent(type))
            types.append(type);
    }
    return sorted(types);
}

QStringList PxCatalogueProducts::names()
{
    QStringList names;
    for (const PxProductType &type : knownTypes()) {
        if (isCurrent(type) || isLegacy(type))
            names.append(type.productName());
    }
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

QString PxCatalogueProducts::className(const PxProductType &type)
{
    return keywordsOf(type.productClass(), productClassKeywords).join(QLatin1String(", "));
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
