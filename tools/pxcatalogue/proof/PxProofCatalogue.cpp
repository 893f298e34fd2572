#include "proof/PxProofCatalogue.h"

#include "drawing/PxProductFile.h"
#include "proof/PxPageNames.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxThemeTable.h"

#include <PxProductProperties.h>
#include <variants/PxProductVariantListModel.h>

namespace {

using Kind = PxPageNames::Kind;

/** Themes may have the same id: the second one has the page "theme-id_2". */
QVector<PxProofTheme> allThemes()
{
    QVector<PxProofTheme> themes;
    QHash<QString, int> counts;
    for (const PxTheme &theme : PxThemeTable::sorted(PxThemeFactory::instance()->themeList())) {
        const QString page = PxPageNames::of(Kind::Theme, theme.id());
        const int count = ++counts[page];
        themes.append({theme, count == 1 ? page : QString("%1_%2").arg(page).arg(count),
                       !theme.thumbnail().isNull()});
    }
    return themes;
}

QVector<PxProofVariant> variantsOf(const PxProductType &type)
{
    const PxProductVariantListModel model(type);
    QVector<PxProofVariant> variants;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        variants.append({index.data(PxProductVariantListModel::IdentifierRole).toString(),
                         index.data().toString(),
                         index.data(PxProductVariantListModel::ColorRole).value<QColor>()});
    }
    return variants;
}

QVector<PxProofProduct> productsOf(const PxProductTypeConfigRegistry *registry, Kind kind,
                                   const QVector<PxProofTheme> &themes)
{
    QVector<PxProofProduct> products;
    for (const PxProductType &type : PxCatalogueProducts::of(registry)) {
        PxProofProduct product{registry, type, kind == Kind::LegacyProduct,
                               PxPageNames::of(kind, type.productName())};
        for (int i = 0; i < themes.size() && !product.isLegacy; ++i) {
            if (PxProductContext(type, themes[i].theme).isValid())
                product.themes.append(i);
        }
        product.variants = variantsOf(type);
        products.append(product);
    }
    return products;
}

/** The changes of all objects of a kind, by name. */
QHash<QString, PxProofChanges> byName(const PxDiffOfKind &diff)
{
    QHash<QString, PxProofChanges> changes;
    for (const QString &name : diff.added)
        changes[name].isNew = true;
    for (const PxRenamedProduct &product : diff.renamed)
        changes[product.to].oldName = product.from;
    for (const PxChangedObject &object : diff.changed)
        changes[object.name].changes = object.changes;
    return changes;
}

} // namespace

PxProofCatalogue::PxProofCatalogue() : themes(allThemes())
{
    products = productsOf(PxProductTypeConfigRegistry::instance(), Kind::Product, themes);
    legacyProducts =
        productsOf(PxProductTypeConfigRegistry::legacyInstance(), Kind::LegacyProduct, themes);
}

void PxProofCatalogue::addFindings(const PxCheckReport &check)
{
    fileNames = check.catalogueNames;
    for (auto file = files.all().begin(); file != files.all().end(); ++file)
        PxProductFile::setContent(file.key(), (*file)->document().documentElement());
    QHash<QString, PxProofProduct *> productOfFile;
    for (QVector<PxProofProduct> *list : {&products, &legacyProducts}) {
        for (PxProofProduct &product : *list)
            productOfFile.insert(PxProductFile::pathOf(product.type, product.isLegacy), &product);
    }
    for (const PxFinding &finding : check.findings) {
        PxProofProduct *product = productOfFile.value(fileNames.value(finding.place.path));
        (product ? product->findings : findings).append(finding);
    }
}

void PxProofCatalogue::addChanges(const PxDiff &changes)
{
    diff = changes;
    const auto ofProducts = byName(changes.products);
    for (PxProofProduct &product : products)
        product.changes = ofProducts.value(product.type.productName());
    const auto ofLegacyProducts = byName(changes.legacyProducts);
    for (PxProofProduct &product : legacyProducts)
        product.changes = ofLegacyProducts.value(product.type.productName());
    const auto ofThemes = byName(changes.themes);
    for (PxProofTheme &theme : themes)
        theme.changes = ofThemes.value(theme.theme.id());
}
