#include "proof/PxProofThemePage.h"

#include "proof/PxPageNames.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofPage.h"
#include "proof/PxProofReport.h"
#include "proof/PxProofWords.h"
#include "report/PxReport.h"
#include "report/PxThemeTable.h"

namespace {

void addProducts(PxHtml *html, const PxProofCatalogue &catalogue, const PxTheme &theme)
{
    html->open("ul");
    for (const PxProofProduct &product : catalogue.products) {
        if (!product.themes.contains(theme.id()))
            continue;
        html->open("li");
        html->element("a", product.type.productName(), {{"href", product.page + ".html"}});
        html->close();
    }
    html->close();
}

} // namespace

QByteArray PxProofThemePage::page(const PxProofCatalogue &catalogue, const PxTheme &theme)
{
    PxProofPage page(catalogue.title, theme.id());
    PxHtml &html = page.html();
    html.element("p", theme.description(), {{"class", "quiet"}});
    if (!theme.thumbnail().isNull())
        html.single(
            "img",
            {{"src", "drawings/" + PxPageNames::of(PxPageNames::Kind::Theme, theme.id()) + ".png"},
             {"alt", theme.description()}});
    page.addHeading(PxProofWords::tr("Alle Werte"));
    PxReport report;
    PxThemeTable::addTo(&report, PxThemeList(theme));
    PxProofReport::addTo(&html, report);
    page.addHeading(PxProofWords::tr("Produkte"));
    addProducts(&html, catalogue, theme);
    return page.finished();
}
