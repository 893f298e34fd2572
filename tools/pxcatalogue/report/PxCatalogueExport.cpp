#include "report/PxCatalogueExport.h"

#include "check/words/PxListedProductTypes.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxExportedProduct.h"
#include "report/PxReport.h"
#include "report/PxThemeTable.h"

#include <PxProductProperties.h>

#include <algorithm>

namespace {

PxProductTypeList sortedByName(PxProductTypeList types)
{
    std::sort(types.begin(), types.end(), [](const PxProductType &a, const PxProductType &b) {
        return a.productName() < b.productName();
    });
    return types;
}

QJsonObject ofType(const char *type, QJsonObject object)
{
    object.insert("type", type);
    return object;
}

QJsonObject productType(const PxProductType &type)
{
    return {{"name", type.productName()},
            {"shortName", type.shortProductName()},
            {"code", int(type.type())},
            {"class", PxCatalogueProducts::className(type)}};
}

} // namespace

PxCatalogueExport::PxCatalogueExport()
    : m_types(sortedByName(PxListedProductTypes(false).types()))
    , m_products(PxCatalogueProducts::of(PxProductTypeConfigRegistry::instance(), m_types))
    , m_legacyProducts(
          PxCatalogueProducts::of(PxProductTypeConfigRegistry::legacyInstance(), m_types))
    , m_themes(PxThemeTable::sorted(PxThemeFactory::instance()->themeList()))
{}

std::optional<QJsonObject> PxCatalogueExport::next()
{
    const int index = m_next++;
    if (index == -1)
        return header();
    const int count =
        m_types.size() + m_products.size() + m_legacyProducts.size() + m_themes.size();
    return index < count ? std::optional(object(index)) : std::nullopt;
}

QJsonObject PxCatalogueExport::header() const
{
    return ofType("catalogue", {{"format", PxReport::formatVersion},
                                {"lengthUnit", PxReport::lengthUnit},
                                {"productTypes", m_types.size()},
                                {"products", m_products.size()},
                                {"legacyProducts", m_legacyProducts.size()},
                                {"themes", m_themes.size()}});
}

QJsonObject PxCatalogueExport::object(int index) const
{
    if (index < m_types.size())
        return ofType("productType", productType(m_types[index]));
    index -= m_types.size();
    if (index < m_products.size())
        return ofType("product", PxExportedProduct::of(PxProductTypeConfigRegistry::instance(),
                                                       m_products[index]));
    index -= m_products.size();
    if (index < m_legacyProducts.size())
        return ofType("legacyProduct",
                      PxExportedProduct::of(PxProductTypeConfigRegistry::legacyInstance(),
                                            m_legacyProducts[index]));
    index -= m_legacyProducts.size();
    QJsonObject theme = PxThemeTable::object(m_themes[index]);
    theme.remove("isExpired"); // tomorrow it may be
    return ofType("theme", theme);
}
