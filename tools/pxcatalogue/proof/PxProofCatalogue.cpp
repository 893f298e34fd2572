#include "proof/PxProofCatalogue.h"

#include "drawing/PxProductFile.h"
#include "proof/PxPageNames.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxThemeTable.h"

#include <PxProductProperties.h>

#include <QHash>

namespace {

using Kind = PxPageNames::Kind;

QVector<PxProofProduct> productsOf(const PxProductTypeConfigRegistry *registry, Kind kind,
                                   const PxThemeList &themes)
{
    QVector<PxProofProduct> products;
    for (const PxProductType &type : PxCatalogueProducts::of(registry)) {
        PxProofProduct product{registry, type, kind == Kind::LegacyProduct,
                               PxPageNames::of(kind, type.productName())};
        for (const PxTheme &theme : themes) {
            if (!product.isLegacy && PxProductContext(type, theme).isValid())
                product.themes.append(theme.id());
        }
        products.append(product);
    }
    return products;
}

} // namespace

PxProofCatalogue PxProofCatalogue::of(const QString &title, const PxCheckReport &check)
{
    PxProofCatalogue catalogue;
    catalogue.title = title;
    catalogue.themes = PxThemeTable::sorted(PxThemeFactory::instance()->themeList());
    catalogue.products =
        productsOf(PxProductTypeConfigRegistry::instance(), Kind::Product, catalogue.themes);
    catalogue.legacyProducts = productsOf(PxProductTypeConfigRegistry::legacyInstance(),
                                          Kind::LegacyProduct, catalogue.themes);
    QHash<QString, PxProofProduct *> productOfFile;
    for (QVector<PxProofProduct> *products : {&catalogue.products, &catalogue.legacyProducts}) {
        for (PxProofProduct &product : *products)
            productOfFile.insert(PxProductFile::pathOf(product.type, product.isLegacy), &product);
    }
    for (const PxFinding &finding : check.findings) {
        PxProofProduct *product =
            productOfFile.value(check.catalogueNames.value(finding.place.path));
        (product ? product->findings : catalogue.findings).append(finding);
    }
    return catalogue;
}
