#include "proof/PxProofThemePage.h"

#include "proof/PxProofCatalogue.h"
#include "proof/PxProofDifferences.h"
#include "proof/PxProofPage.h"
#include "proof/PxProofReport.h"
#include "proof/PxProofWords.h"
#include "report/PxThemeTable.h"
#include "writing/PxTerminal.h"

#include <algorithm>

namespace {

constexpr int longestName = 1000;

void addProducts(PxHtml *html, const PxProofCatalogue &catalogue, const PxProofTheme &theme)
{
    const int index = int(&theme - catalogue.themes.constData());
    html->open("ul", {{"class", "names"}});
    for (const PxProofProduct &product : catalogue.products) {
        if (!std::binary_search(product.themes.begin(), product.themes.end(), index))
            continue;
        html->open("li");
        html->element("a", PxTerminal::shortened(product.type.productName(), longestName),
                      {{"href", product.page + ".html"}});
        html->close();
    }
    html->close();
}

} // namespace

QByteArray PxProofThemePage::page(const PxProofCatalogue &catalogue, const PxProofTheme &theme)
{
    PxProofPage page(catalogue, theme.theme.id());
    PxHtml &html = page.html();
    html.element("p", theme.theme.description(), {{"class", "quiet"}});
    if (theme.hasPicture)
        html.single("img", {{"src", "drawings/" + theme.page + ".png"},
                            {"alt", theme.theme.description()}});
    if (catalogue.diff) {
        page.addHeading(PxProofWords::tr("Änderungen"));
        PxProofDifferences::addTo(&html, theme.changes);
    }
    page.addHeading(PxProofWords::tr("Alle Werte"));
    PxReport report;
    PxThemeTable::addFieldsTo(&report, theme.theme);
    PxProofReport::addTables(&html, report);
    page.addHeading(PxProofWords::tr("Produkte"));
    addProducts(&html, catalogue, theme);
    return page.finished();
}
