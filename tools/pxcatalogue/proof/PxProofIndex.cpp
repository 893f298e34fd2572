#include "proof/PxProofIndex.h"

#include "format/PxCatalogueKeywords.h"
#include "proof/PxPageNames.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofPage.h"
#include "proof/PxProofWords.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxNumberRanges.h"
#include "report/PxReportValue.h"

#include <PxProductProperties.h>

#include <QMap>

namespace {

using Format = PxReportFormat;

/** What a row of the table shows of a product, and what the filter compares. */
struct Row
{
    const PxProofProduct &product;
    const PxProductTypeDescription *description = product.registry->description(product.type);
    QString productClass = PxCatalogueProducts::className(product.type);
    QString binding = description->binding().humanReadableName();
    QString paper = description->paperType().humanReadableName();
    QSizeF size = description->usablePrintSize(PxPageTypeNormalPage, -1);
    QList<int> pageCounts = description->offeredPageCounts();
    QString orientation = keywordOf(description->orientation());

    QString sizeText() const
    {
        return PxReportValue::text(PxReportValue::size(size), Format::Size);
    }
    /** Every word that is seen in the row, to be searched for. */
    QString text() const
    {
        return QStringList{product.type.productName(),
                           product.type.shortProductName(),
                           productClass,
                           binding,
                           paper,
                           sizeText(),
                           product.themes.join(' ')}
            .join(' ')
            .toLower();
    }
};

/** The columns, with the key by which the address calls them. */
constexpr struct
{
    const char *key;
    const char *label;
    bool isNumber;
} columns[] = {
    {"", QT_TRANSLATE_NOOP("PxProof", "Bild"), false},
    {"name", QT_TRANSLATE_NOOP("PxProof", "Produkt"), false},
    {"shop", QT_TRANSLATE_NOOP("PxProof", "Name im Shop"), false},
    {"class", QT_TRANSLATE_NOOP("PxProof", "Klasse"), false},
    {"binding", QT_TRANSLATE_NOOP("PxProof", "Bindung"), false},
    {"paper", QT_TRANSLATE_NOOP("PxProof", "Papier"), false},
    {"size", QT_TRANSLATE_NOOP("PxProof", "Größe mm"), true},
    {"pages", QT_TRANSLATE_NOOP("PxProof", "Seiten"), true},
    {"themes", QT_TRANSLATE_NOOP("PxProof", "Themen"), true},
    {"findings", QT_TRANSLATE_NOOP("PxProof", "Befunde"), true},
};

void addHeads(PxHtml *html)
{
    html->open("thead");
    html->open("tr");
    for (const auto &column : columns)
        html->element("th", PxProofWords::tr(column.label),
                      {{"scope", "col"},
                       {"data-key", *column.key ? QString(column.key) : QString()},
                       {"class", column.isNumber ? QString("number") : QString()}});
    html->close();
    html->close();
}

void addNumber(PxHtml *html, const QString &text, double order)
{
    html->element("td", text, {{"class", "number"}, {"data-sort", QString::number(order, 'f', 0)}});
}

void addRow(const Row &row, PxHtml *html)
{
    const double longest = qMax(row.size.width(), row.size.height());
    html->open("tr", {{"data-text", row.text()},
                      {"data-class", row.productClass},
                      {"data-binding", row.binding},
                      {"data-paper", row.paper},
                      {"data-orientation", row.orientation},
                      {"data-longest", row.size.isValid() ? QString::number(longest) : ""},
                      {"data-counts", PxNumberRanges::text(row.pageCounts).remove(',')}});
    html->open("td");
    if (row.size.isValid())
        html->single("img", {{"src", "drawings/" + row.product.page + ".svg"},
                             {"alt", ""},
                             {"width", "80"},
                             {"height", "56"},
                             {"loading", "lazy"}});
    html->close();
    html->open("th", {{"scope", "row"}, {"class", "name"}});
    html->element("a", row.product.type.productName(), {{"href", row.product.page + ".html"}});
    html->close();
    for (const QString &text :
         {row.product.type.shortProductName(), row.productClass, row.binding, row.paper})
        html->element("td", text);
    addNumber(html, row.sizeText(), row.size.isValid() ? row.size.width() * row.size.height() : -1);
    addNumber(html, PxNumberRanges::text(row.pageCounts), row.pageCounts.value(0));
    addNumber(html, QString::number(row.product.themes.size()), row.product.themes.size());
    int findings = 0;
    for (const PxFinding &finding : row.product.findings)
        findings += finding.count();
    addNumber(html, QString::number(findings), findings);
    html->close();
}

void addTable(const QVector<PxProofProduct> &products, const QString &id, PxHtml *html)
{
    html->open("div", {{"class", "wide"},
                       {"tabindex", "0"},
                       {"role", "region"},
                       {"aria-label", PxProofWords::tr("Tabelle der Produkte")}});
    html->open("table", {{"id", id}, {"class", "products"}});
    addHeads(html);
    html->open("tbody");
    for (const PxProofProduct &product : products)
        addRow({product}, html);
    html->close();
    html->close();
    html->close();
}

void addChoice(const QString &name, const QString &label, const QStringList &values, PxHtml *html)
{
    html->open("label");
    html->text(label + ' ');
    html->open("select", {{"name", name}});
    html->element("option", PxProofWords::tr("alle"), {{"value", ""}});
    for (const QString &value : values)
        html->element("option", value, {{"value", value}});
    html->close();
    html->close();
}

void addInput(const char *name, const QString &label, bool isNumber, PxHtml *html)
{
    html->open("label");
    html->text(label + ' ');
    html->single("input", {{"name", name},
                           {"type", isNumber ? "number" : "search"},
                           {"min", isNumber ? QString("1") : QString()}});
    html->close();
}

/** Works with the script only, and is hidden without it. */
void addFilter(const QVector<PxProofProduct> &products, PxHtml *html)
{
    QMap<QString, QMap<QString, bool>> values; // by the name of the choice, sorted
    for (const PxProofProduct &product : products) {
        const Row row{product};
        values["class"][row.productClass] = true;
        values["binding"][row.binding] = true;
        values["paper"][row.paper] = true;
        values["orientation"][row.orientation] = true;
    }
    html->open("form", {{"id", "filter"}, {"class", "needs-script"}, {"role", "search"}});
    addInput("text", PxProofWords::tr("Text"), false, html);
    addChoice("class", PxProofWords::tr("Klasse"), values["class"].keys(), html);
    addChoice("binding", PxProofWords::tr("Bindung"), values["binding"].keys(), html);
    addChoice("paper", PxProofWords::tr("Papier"), values["paper"].keys(), html);
    addChoice("orientation", PxProofWords::tr("Format"), values["orientation"].keys(), html);
    addInput("from", PxProofWords::tr("Längere Seite ab mm"), true, html);
    addInput("to", PxProofWords::tr("bis mm"), true, html);
    addInput("pages", PxProofWords::tr("Seitenzahl"), true, html);
    html->element("button", PxProofWords::tr("Alle zeigen"),
                  {{"type", "reset"}, {"class", "plain"}});
    html->open("output", {{"id", "hits"}, {"aria-live", "polite"}});
    html->close();
    html->close();
}

void addThemes(const PxProofCatalogue &catalogue, PxHtml *html)
{
    html->open("div", {{"class", "wide"},
                       {"tabindex", "0"},
                       {"role", "region"},
                       {"aria-label", PxProofWords::tr("Tabelle der Themen")}});
    html->open("table", {{"class", "themes"}});
    html->open("thead");
    html->open("tr");
    for (const QString &label :
         {PxProofWords::tr("Bild"), PxProofWords::tr("Thema"), PxProofWords::tr("Beschreibung"),
          PxProofWords::tr("Produktgruppe"), PxProofWords::tr("Bestellbar bis")})
        html->element("th", label, {{"scope", "col"}});
    html->close();
    html->close();
    html->open("tbody");
    for (const PxTheme &theme : catalogue.themes) {
        const QString page = PxPageNames::of(PxPageNames::Kind::Theme, theme.id());
        html->open("tr");
        html->open("td");
        if (!theme.thumbnail().isNull())
            html->single("img",
                         {{"src", "drawings/" + page + ".png"}, {"alt", ""}, {"loading", "lazy"}});
        html->close();
        html->open("th", {{"scope", "row"}, {"class", "name"}});
        html->element("a", theme.id(), {{"href", page + ".html"}});
        html->close();
        html->element("td", theme.description());
        html->element("td", keywordsOf(theme.productGroup().value(),
                                       EnumHelper::globalMapProductGroupEnumString)
                                .join(", "));
        html->element("td", theme.expiryDate().date().toString(Qt::ISODate));
        html->close();
    }
    html->close();
    html->close();
    html->close();
}

} // namespace

QByteArray PxProofIndex::page(const PxProofCatalogue &catalogue)
{
    PxProofPage page(catalogue.title, catalogue.title);
    PxHtml &html = page.html();
    page.addHeading(PxProofWords::tr("Produkte"));
    addFilter(catalogue.products, &html);
    addTable(catalogue.products, "products", &html);
    page.addHeading(PxProofWords::tr("Frühere Produkte"), "earlier");
    addTable(catalogue.legacyProducts, "earlier-products", &html);
    page.addHeading(PxProofWords::tr("Themen"), "themes");
    addThemes(catalogue, &html);
    return page.finished();
}
