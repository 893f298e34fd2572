#include "export/PxCatalogueExport.h"

#include "check/words/PxListedProductTypes.h"
#include "export/PxExportedProduct.h"
#include "report/PxCatalogueProducts.h"
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

void addProductType(const PxProductType &type, PxJsonLine *line)
{
    line->add("type", "productType");
    line->add("name", type.productName());
    line->add("shortName", type.shortProductName());
    line->add("code", int(type.type()));
    line->add("class", PxCatalogueProducts::className(type));
}

} // namespace

PxCatalogueExport::PxCatalogueExport()
    : m_types(sortedByName(PxListedProductTypes(false).types()))
    , m_products(PxCatalogueProducts::of(PxProductTypeConfigRegistry::instance(), m_types))
    , m_legacyProducts(
          PxCatalogueProducts::of(PxProductTypeConfigRegistry::legacyInstance(), m_types))
    , m_themes(PxThemeTable::sorted(PxThemeFactory::instance()->themeList()))
{}

void PxCatalogueExport::becomeIndependentOfUser(bool hasDefaults)
{
    // Expiry dates are read as local time: in UTC no hour is missing, nor any day.
    qputenv("TZ", "UTC");
    // The default templates of whoever runs the command are no part of the catalogue.
    auto *config = PxDirectoryConfig::instance();
    if (!hasDefaults)
        config->setUserDefaultsPath(config->resource("defaults", false));
}

std::optional<PxJsonLine> PxCatalogueExport::next()
{
    const int index = m_next++;
    const int count =
        m_types.size() + m_products.size() + m_legacyProducts.size() + m_themes.size();
    if (index == count)
        return std::nullopt;
    PxJsonLine line;
    if (index < 0)
        addHeader(&line);
    else
        addObject(index, &line);
    return line;
}

void PxCatalogueExport::addHeader(PxJsonLine *line) const
{
    line->add("type", "catalogue");
    line->add("format", PxReport::formatVersion);
    line->add("lengthUnit", PxReport::lengthUnit);
    line->add("productTypes", m_types.size());
    line->add("products", m_products.size());
    line->add("legacyProducts", m_legacyProducts.size());
    line->add("themes", m_themes.size());
}

void PxCatalogueExport::addObject(int index, PxJsonLine *line) const
{
    const int product = index - m_types.size();
    const int legacyProduct = product - m_products.size();
    const int theme = legacyProduct - m_legacyProducts.size();
    if (theme >= 0) {
        line->add("type", "theme");
        PxThemeTable::addTo(line, m_themes[theme]);
    } else if (legacyProduct >= 0) {
        line->add("type", "legacyProduct");
        PxExportedProduct::addTo(line, PxProductTypeConfigRegistry::legacyInstance(),
                                 m_legacyProducts[legacyProduct]);
    } else if (product >= 0) {
        line->add("type", "product");
        PxExportedProduct::addTo(line, PxProductTypeConfigRegistry::instance(),
                                 m_products[product]);
    } else {
        addProductType(m_types[index], line);
    }
}
