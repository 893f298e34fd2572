#include "proof/PxProofProductPage.h"

#include "format/PxCatalogueKeywords.h"
#include "proof/PxPageNames.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofDrawings.h"
#include "proof/PxProofFindings.h"
#include "proof/PxProofPage.h"
#include "proof/PxProofReport.h"
#include "proof/PxProofWords.h"
#include "proof/PxSpinePlot.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxProductReport.h"
#include "report/PxShownProduct.h"

#include <PxProductProperties.h>
#include <variants/PxProductVariantListModel.h>

#include <QHash>
#include <QImage>
#include <QPixmap>

namespace {

void addSpine(PxProofPage *page, const PxProofProduct &product)
{
    const PxProductTypeDescription &description = *product.registry->description(product.type);
    if (!description.hasSpine())
        return;
    QVector<QPair<int, int>> widths;
    for (const int count : description.offeredPageCounts())
        widths.append({count, description.spineWidth(count)});
    if (widths.isEmpty())
        return;
    page->addHeading(PxProofWords::tr("Rücken"));
    PxSpinePlot(widths).addTo(&page->html());
}

void addThemes(PxProofPage *page, const PxProofProduct &product)
{
    if (product.themes.isEmpty())
        return;
    page->addHeading(PxProofWords::tr("Themen"));
    PxHtml &html = page->html();
    html.open("ul");
    for (const QString &id : product.themes) {
        html.open("li");
        html.element("a", id, {{"href", PxPageNames::of(PxPageNames::Kind::Theme, id) + ".html"}});
        html.close();
    }
    html.close();
}

/** A variant whose name is a colour has a swatch of it. */
void addVariants(PxProofPage *page, const PxProofProduct &product)
{
    const auto variants = PxProductVariantIdentifiers::instance()->variants(product.type);
    if (variants.isEmpty())
        return;
    page->addHeading(PxProofWords::tr("Varianten"));
    PxHtml &html = page->html();
    html.open("ul");
    for (auto it = variants.begin(); it != variants.end(); ++it) {
        html.open("li");
        const QImage swatch =
            PxProductVariantListModel::colorDescriptionToPixmap(it.value()).toImage();
        if (!swatch.isNull()) {
            html.open("svg",
                      {{"class", "swatch"}, {"viewBox", "0 0 1 1"}, {"aria-hidden", "true"}});
            html.element(
                "rect", QString(),
                {{"width", "1"}, {"height", "1"}, {"fill", swatch.pixelColor(0, 0).name()}});
            html.close();
        }
        html.text(QString(" %1 (%2)").arg(it.value(), it.key()));
        html.close();
    }
    html.close();
}

/** The criteria in which each compatible product agrees with this one. */
QHash<PxProductType, QStringList> agreements(const PxProofProduct &product)
{
    QHash<PxProductType, QStringList> agreeing;
    for (const auto &row : criterionRows) {
        for (const PxProductType &other :
             product.registry->findCompatibleProducts(product.type, row.value))
            agreeing[other].append(row.keyword);
    }
    return agreeing;
}

void addCompatible(PxProofPage *page, const PxProofProduct &product)
{
    PxProductTypeList others =
        product.isLegacy
            ? PxProductTypeList()
            : product.registry->findCompatibleProducts(product.type, PxProductComparationNone);
    others.removeAll(product.type);
    if (others.isEmpty())
        return;
    page->addHeading(PxProofWords::tr("Austauschbar mit"));
    const QHash<PxProductType, QStringList> agreeing = agreements(product);
    PxHtml &html = page->html();
    html.open("ul");
    for (const PxProductType &other : PxCatalogueProducts::sorted(others)) {
        html.open("li");
        html.element(
            "a", other.productName(),
            {{"href", PxPageNames::of(PxPageNames::Kind::Product, other.productName()) + ".html"}});
        const QString same = agreeing.value(other).join(", ");
        if (!same.isEmpty())
            html.text(" (" + PxProofWords::tr("gleich: %1").arg(same) + ')');
        html.close();
    }
    html.close();
}

} // namespace

QByteArray PxProofProductPage::page(const PxProofCatalogue &catalogue,
                                    const PxProofProduct &product)
{
    PxProofPage page(catalogue.title, product.type.productName());
    PxHtml &html = page.html();
    html.element("p", product.type.shortProductName(), {{"class", "quiet"}});
    page.addHeading(PxProofWords::tr("Zeichnungen"));
    PxProofDrawings::addTo(&html, product);
    addSpine(&page, product);
    page.addHeading(PxProofWords::tr("Befunde"));
    PxProofFindings::addTo(&html, product.findings);
    addThemes(&page, product);
    addVariants(&page, product);
    addCompatible(&page, product);
    page.addHeading(PxProofWords::tr("Alle Werte"));
    const PxShownProduct shown =
        PxProductReport::shown(product.registry, product.type, 0, QString());
    PxProofReport::addTo(&html, PxProductReport::of(shown));
    return page.finished();
}
