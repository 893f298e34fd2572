#include "proof/PxProofIndex.h"

#include "format/PxCatalogueKeywords.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofDifferences.h"
#include "proof/PxProofFindings.h"
#include "proof/PxProofPage.h"
#include "proof/PxProofWords.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxNumberRanges.h"
#include "report/PxReportValue.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

#include <QMap>

namespace {

constexpr int longestName = 1000;
constexpr int mostThemes = 3; // that are named in the table of products

/** A column of a table, with the key by which the address calls it; without a key not sorted. */
struct Column
{
    const char *key;
    const char *heading;
    bool isNumber = false;
};

// clang-format off
constexpr Column productColumns[] = {
    {"", QT_TRANSLATE_NOOP("PxProof", "Bild")},
    {"name", QT_TRANSLATE_NOOP("PxProof", "Produkt")},
    {"shop", QT_TRANSLATE_NOOP("PxProof", "Name im Shop")},
    {"class", QT_TRANSLATE_NOOP("PxProof", "Klasse")},
    {"binding", QT_TRANSLATE_NOOP("PxProof", "Bindung")},
    {"paper", QT_TRANSLATE_NOOP("PxProof", "Papier")},
    {"size", QT_TRANSLATE_NOOP("PxProof", "Größe in mm"), true},
    {"pages", QT_TRANSLATE_NOOP("PxProof", "Seiten"), true},
    {"themes", QT_TRANSLATE_NOOP("PxProof", "Themen")},
    {"findings", QT_TRANSLATE_NOOP("PxProof", "Befunde"), true},
};

constexpr Column themeColumns[] = {
    {"", QT_TRANSLATE_NOOP("PxProof", "Bild")},
    {"id", QT_TRANSLATE_NOOP("PxProof", "Thema")},
    {"description", QT_TRANSLATE_NOOP("PxProof", "Beschreibung")},
    {"group", QT_TRANSLATE_NOOP("PxProof", "Produktgruppe")},
    {"until", QT_TRANSLATE_NOOP("PxProof", "Bestellbar bis")},
    {"products", QT_TRANSLATE_NOOP("PxProof", "Produkte"), true},
};
// clang-format on

QString shortened(const QString &text)
{
    return PxTerminal::shortened(text, longestName);
}

/** What a row of the table shows of a product, and what the filter compares. */
struct ProductRow
{
    ProductRow(const PxProofProduct &proofProduct, const PxProofCatalogue &catalogue)
        : product(proofProduct)
    {
        for (const int theme : product.themes)
            themes.append(catalogue.themes[theme].theme.id());
    }

    const PxProofProduct &product;
    const PxProductTypeDescription *description = product.registry->description(product.type);
    QString name = shortened(product.type.productName());
    QString shopName = shortened(product.type.shortProductName());
    QString productClass = PxCatalogueProducts::className(product.type);
    QString binding = description->binding().humanReadableName();
    QString paper = description->paperType().humanReadableName();
    QSizeF size = description->usablePrintSize(PxPageTypeNormalPage, -1);
    QList<int> pageCounts = description->offeredPageCounts();
    QString orientation = keywordOf(description->orientation());
    QStringList themes = {};

    QString sizeText() const
    {
        return PxReportValue::text(PxReportValue::size(size), PxReportFormat::Size);
    }
    QString themesText() const
    {
        const QString text = QStringList(themes.mid(0, mostThemes)).join(", ");
        const int rest = themes.size() - mostThemes;
        return shortened(text) + (rest > 0 ? QString(" +%1").arg(rest) : QString());
    }
    int findingCount() const
    {
        int count = 0;
        for (const PxFinding &finding : product.findings)
            count += finding.count();
        return count;
    }
    /** All words by which the product is searched for, themes that are not named among them. */
    QString text() const
    {
        const QStringList words{name,
                                shopName,
                                PxProofWords::keyword(productClass),
                                binding,
                                paper,
                                PxProofWords::keyword(orientation),
                                sizeText(),
                                shortened(themes.join(' '))};
        return words.join(' ').toLower();
    }
};

QString groupOf(const PxTheme &theme)
{
    return keywordsOf(theme.productGroup().value(), EnumHelper::globalMapProductGroupEnumString)
        .join(", ");
}

void addCell(PxHtml *html, const QString &text)
{
    html->element("td", text);
}

void addNumber(PxHtml *html, const QString &text, double order)
{
    html->element("td", text, {{"class", "number"}, {"data-sort", QString::number(order, 'f', 0)}});
}

void addPicture(PxHtml *html, const QString &file)
{
    html->open("td");
    if (!file.isEmpty())
        html->single("img", {{"src", "drawings/" + file},
                             {"alt", ""},
                             {"width", "80"},
                             {"height", "56"},
                             {"loading", "lazy"}});
    html->close();
}

void addName(PxHtml *html, const QString &name, const QString &page)
{
    html->open("th", {{"scope", "row"}, {"class", "name"}});
    html->open("a", {{"href", page + ".html"}});
    const QStringList parts = shortened(name).split('_');
    for (int i = 0; i < parts.size(); ++i) {
        if (i > 0) {
            html->text("_");
            html->single("wbr", {}); // a narrow column breaks the name here
        }
        html->text(parts[i]);
    }
    html->close();
    html->close();
}

void addRow(PxHtml *html, const ProductRow &row)
{
    const double longest = qMax(row.size.width(), row.size.height());
    const bool hasSize = row.size.isValid();
    html->open("tr", {{"data-text", row.text()},
                      {"data-class", row.productClass},
                      {"data-binding", row.binding},
                      {"data-paper", row.paper},
                      {"data-orientation", row.orientation},
                      {"data-longest", hasSize ? QString::number(longest) : ""},
                      {"data-counts", PxNumberRanges::text(row.pageCounts).remove(',')}});
    addPicture(html, hasSize ? row.product.page + ".svg" : QString());
    addName(html, row.name, row.product.page);
    for (const QString &text :
         {row.shopName, PxProofWords::keyword(row.productClass), row.binding, row.paper})
        addCell(html, text);
    addNumber(html, row.sizeText(), hasSize ? row.size.width() * row.size.height() : -1);
    addNumber(html, PxNumberRanges::text(row.pageCounts), row.pageCounts.value(0));
    addCell(html, row.themesText());
    addNumber(html, QString::number(row.findingCount()), row.findingCount());
    html->close();
}

void addRow(PxHtml *html, const PxProofTheme &row, int productCount)
{
    const PxTheme &theme = row.theme;
    const QString group = groupOf(theme);
    const QString groupName = PxProofWords::keyword(group);
    const QStringList words{theme.id(), theme.description(), groupName};
    html->open("tr", {{"data-text", shortened(words.join(' ').toLower())}, {"data-group", group}});
    addPicture(html, row.hasPicture ? row.page + ".png" : QString());
    addName(html, theme.id(), row.page);
    addCell(html, shortened(theme.description()));
    addCell(html, groupName);
    addCell(html, theme.expiryDate().date().toString(Qt::ISODate));
    addNumber(html, QString::number(productCount), productCount);
    html->close();
}

/** Opens a table that can be scrolled sideways, up to its body. */
template <std::size_t COUNT>
void openTable(PxHtml *html, const QString &label, const Column (&columns)[COUNT])
{
    html->open("div",
               {{"class", "wide"}, {"tabindex", "0"}, {"role", "region"}, {"aria-label", label}});
    html->open("table");
    html->open("thead");
    html->open("tr");
    for (const Column &column : columns)
        html->element("th", PxProofWords::tr(column.heading),
                      {{"scope", "col"},
                       {"data-key", *column.key ? QString(column.key) : QString()},
                       {"class", column.isNumber ? QString("number") : QString()}});
    html->close();
    html->close();
    html->open("tbody");
}

void closeTable(PxHtml *html)
{
    html->close();
    html->close();
    html->close();
}

/** A filter works with the script only, and is hidden without it. */
void openFilter(PxHtml *html, const QString &label)
{
    html->open("form", {{"class", "needs-script"}, {"role", "search"}, {"aria-label", label}});
}

void closeFilter(PxHtml *html)
{
    html->element("button", PxProofWords::tr("Alle zeigen"), {{"type", "reset"}});
    html->element("output", QString(),
                  {{"aria-live", "polite"}, {"data-text", PxProofWords::tr("%1 von %2", "hits")}});
    html->close();
}

void addChoice(PxHtml *html, const char *name, const QString &label, const QStringList &values)
{
    html->open("label");
    html->text(label + ' ');
    html->open("select", {{"name", name}});
    html->element("option", PxProofWords::tr("alle"), {{"value", ""}});
    for (const QString &value : values) {
        if (!value.isEmpty())
            html->element("option", PxProofWords::keyword(value), {{"value", value}});
    }
    html->close();
    html->close();
}

void addInput(PxHtml *html, const char *name, const QString &label, const char *type)
{
    const bool isNumber = qstrcmp(type, "number") == 0;
    html->open("label");
    html->text(label + ' ');
    html->single("input",
                 {{"name", name}, {"type", type}, {"min", isNumber ? QString("1") : QString()}});
    html->close();
}

/** The values of a column, each once, sorted. */
template <typename Rows, typename ValueOf>
QStringList valuesOf(const Rows &rows, ValueOf valueOf)
{
    QMap<QString, bool> values;
    for (const auto &row : rows)
        values.insert(valueOf(row), true);
    return values.keys();
}

void addFilter(PxHtml *html, const QVector<ProductRow> &rows)
{
    const auto values = [&rows](QString ProductRow::*member) {
        return valuesOf(rows, [member](const ProductRow &row) { return row.*member; });
    };
    openFilter(html, PxProofWords::tr("Produkte suchen"));
    addInput(html, "text", PxProofWords::tr("Text"), "search");
    addChoice(html, "class", PxProofWords::tr("Klasse"), values(&ProductRow::productClass));
    addChoice(html, "binding", PxProofWords::tr("Bindung"), values(&ProductRow::binding));
    addChoice(html, "paper", PxProofWords::tr("Papier"), values(&ProductRow::paper));
    addChoice(html, "orientation", PxProofWords::tr("Format"), values(&ProductRow::orientation));
    addInput(html, "from", PxProofWords::tr("Längere Seite ab mm"), "number");
    addInput(html, "to", PxProofWords::tr("bis mm"), "number");
    addInput(html, "pages", PxProofWords::tr("Seitenzahl"), "number");
    closeFilter(html);
}

/** `prefix` is that of its state in the address. */
void addProducts(PxHtml *html, const PxProofCatalogue &catalogue,
                 const QVector<PxProofProduct> &products, const char *prefix)
{
    QVector<ProductRow> rows;
    for (const PxProofProduct &product : products)
        rows.append({product, catalogue});
    html->open("div", {{"class", "list products"}, {"data-prefix", prefix}});
    if (!products.isEmpty())
        addFilter(html, rows);
    openTable(html, PxProofWords::tr("Tabelle der Produkte"), productColumns);
    for (const ProductRow &row : qAsConst(rows))
        addRow(html, row);
    closeTable(html);
    html->close();
}

void addThemes(PxHtml *html, const PxProofCatalogue &catalogue)
{
    QVector<int> productCounts(catalogue.themes.size());
    for (const PxProofProduct &product : catalogue.products) {
        for (const int theme : product.themes)
            ++productCounts[theme];
    }
    html->open("div", {{"class", "list themes"}, {"data-prefix", "theme-"}});
    openFilter(html, PxProofWords::tr("Themen suchen"));
    addInput(html, "text", PxProofWords::tr("Text"), "search");
    addChoice(
        html, "group", PxProofWords::tr("Produktgruppe"),
        valuesOf(catalogue.themes, [](const PxProofTheme &theme) { return groupOf(theme.theme); }));
    closeFilter(html);
    openTable(html, PxProofWords::tr("Tabelle der Themen"), themeColumns);
    for (int i = 0; i < catalogue.themes.size(); ++i)
        addRow(html, catalogue.themes[i], productCounts[i]);
    closeTable(html);
    html->close();
}

} // namespace

QByteArray PxProofIndex::page(const PxProofCatalogue &catalogue)
{
    PxProofPage page(catalogue, catalogue.title);
    PxHtml &html = page.html();
    if (catalogue.diff) {
        page.addHeading(PxProofWords::tr("Änderungen"), "changes");
        PxProofDifferences::addSummary(&html, catalogue);
    }
    page.addHeading(PxProofWords::tr("Produkte"), "products");
    addProducts(&html, catalogue, catalogue.products, "");
    if (!catalogue.legacyProducts.isEmpty()) {
        page.addHeading(PxProofWords::tr("Frühere Produkte"), "earlier");
        addProducts(&html, catalogue, catalogue.legacyProducts, "earlier-");
    }
    if (!catalogue.themes.isEmpty()) {
        page.addHeading(PxProofWords::tr("Themen"), "themes");
        addThemes(&html, catalogue);
    }
    if (!catalogue.findings.isEmpty()) {
        page.addHeading(PxProofWords::tr("Befunde in anderen Dateien"), "findings");
        PxProofFindings::addTo(&html, catalogue.findings, catalogue.fileNames);
    }
    return page.finished();
}
