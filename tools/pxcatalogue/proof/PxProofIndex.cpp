#include "proof/PxProofIndex.h"

#include "format/PxCatalogueKeywords.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofDifferences.h"
#include "proof/PxProofFindings.h"
#include "proof/PxProofFolder.h"
#include "proof/PxProofPage.h"
#include "proof/PxProofWords.h"
#include "report/PxCatalogueProducts.h"
#include "report/PxNumberRanges.h"
#include "report/PxReportValue.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

#include <QMap>

#include <initializer_list>

namespace {

constexpr int longestName = 1000;
constexpr int longestText = 20000; // by which a product is found
constexpr int mostThemes = 3;      // that are named in the table of products

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

/** The display name of a binding or a paper, or its keyword. */
QString nameOf(const QJsonValue &attribute)
{
    return PxProofWords::value(attribute, PxReportFormat::Name);
}

/** What the script compares: numbers by their values, one after the other. */
QString orderOf(std::initializer_list<qint64> numbers)
{
    QStringList texts;
    for (const qint64 number : numbers)
        texts.append(QString::number(number));
    return texts.join(' ');
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
    QJsonValue binding = PxReportValue::name(description->binding());
    QJsonValue paper = PxReportValue::name(description->paperType());
    QSizeF size = description->usablePrintSize(PxPageTypeNormalPage, -1);
    QList<int> pageCounts = description->offeredPageCounts();
    QString orientation = keywordOf(description->orientation());
    QStringList themes = {};

    QString sizeText() const
    {
        return PxProofWords::value(PxReportValue::size(size), PxReportFormat::Size);
    }
    /** By width, then height. */
    QString sizeOrder() const
    {
        return size.isValid() ? orderOf({qRound64(size.width()), qRound64(size.height())})
                              : QString();
    }
    /** By the smallest, then the largest. */
    QString pageCountOrder() const
    {
        return pageCounts.isEmpty() ? QString()
                                    : orderOf({pageCounts.constFirst(), pageCounts.constLast()});
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
                                nameOf(binding),
                                nameOf(paper),
                                PxProofWords::keyword(orientation),
                                sizeText(),
                                themes.join(' ')};
        return PxTerminal::shortened(words.join(' '), longestText);
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

void addNumber(PxHtml *html, const QString &text, const QString &order)
{
    html->element("td", text, {{"class", "number"}, {"data-sort", order}});
}

void addNumber(PxHtml *html, int number)
{
    addNumber(html, QString::number(number), orderOf({number}));
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

/** In tenths of a millimetre. */
QString lengthOf(double length)
{
    return length < 0 ? QString() : QString::number(length, 'f', 0);
}

void addRow(PxHtml *html, const ProductRow &row, const PxProofFolder &folder)
{
    const QString picture = row.product.page + ".svg";
    html->open("tr", {{"data-text", row.text()},
                      {"data-class", row.productClass},
                      {"data-binding", row.binding["keyword"].toString()},
                      {"data-paper", row.paper["keyword"].toString()},
                      {"data-orientation", row.orientation},
                      {"data-width", lengthOf(row.size.width())},
                      {"data-height", lengthOf(row.size.height())},
                      {"data-counts", PxNumberRanges::text(row.pageCounts).remove(',')}});
    addPicture(html, folder.has("drawings/" + picture) ? picture : QString());
    addName(html, row.name, row.product.page);
    for (const QString &text : {row.shopName, PxProofWords::keyword(row.productClass),
                                nameOf(row.binding), nameOf(row.paper)})
        addCell(html, text);
    addNumber(html, row.sizeText(), row.sizeOrder());
    addNumber(html, PxNumberRanges::text(row.pageCounts), row.pageCountOrder());
    addCell(html, row.themesText());
    addNumber(html, row.findingCount());
    html->close();
}

void addRow(PxHtml *html, const PxProofTheme &row, int productCount)
{
    const PxTheme &theme = row.theme;
    const QString group = groupOf(theme);
    const QString groupName = PxProofWords::keyword(group);
    const QStringList words{theme.id(), theme.description(), groupName};
    html->open("tr", {{"data-text", PxTerminal::shortened(words.join(' '), longestText)},
                      {"data-group", group}});
    addPicture(html, row.hasPicture ? row.page + ".png" : QString());
    addName(html, theme.id(), row.page);
    addCell(html, shortened(theme.description()));
    addCell(html, groupName);
    addCell(html, theme.expiryDate().date().toString(Qt::ISODate));
    addNumber(html, productCount);
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

/** What is chosen from, by what is displayed of it, so that a choice is sorted by that. */
using Choices = QMap<QString, QString>;

/** The keyword of each row once, with its word. */
template <typename Rows, typename KeywordOf>
Choices choicesOf(const Rows &rows, KeywordOf keywordOf)
{
    Choices choices;
    for (const auto &row : rows) {
        const QString keyword = keywordOf(row);
        choices.insert(PxProofWords::keyword(keyword), keyword);
    }
    return choices;
}

void addChoice(PxHtml *html, const char *name, const QString &label, const Choices &choices)
{
    html->open("label");
    html->text(label + ' ');
    html->open("select", {{"name", name}});
    html->element("option", PxProofWords::tr("alle"), {{"value", ""}});
    for (auto choice = choices.begin(); choice != choices.end(); ++choice) {
        if (!choice->isEmpty())
            html->element("option", choice.key(), {{"value", *choice}});
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

void addFilter(PxHtml *html, const QVector<ProductRow> &rows)
{
    Choices bindings;
    Choices papers;
    for (const ProductRow &row : rows) {
        bindings.insert(nameOf(row.binding), row.binding["keyword"].toString());
        papers.insert(nameOf(row.paper), row.paper["keyword"].toString());
    }
    openFilter(html, PxProofWords::tr("Produkte suchen"));
    addInput(html, "text", PxProofWords::tr("Text"), "search");
    addChoice(html, "class", PxProofWords::tr("Klasse"),
              choicesOf(rows, [](const ProductRow &row) { return row.productClass; }));
    addChoice(html, "binding", PxProofWords::tr("Bindung"), bindings);
    addChoice(html, "paper", PxProofWords::tr("Papier"), papers);
    addChoice(html, "orientation", PxProofWords::tr("Format"),
              choicesOf(rows, [](const ProductRow &row) { return row.orientation; }));
    addInput(html, "width-from", PxProofWords::tr("Breite ab mm"), "number");
    addInput(html, "width-to", PxProofWords::tr("Breite bis mm"), "number");
    addInput(html, "height-from", PxProofWords::tr("Höhe ab mm"), "number");
    addInput(html, "height-to", PxProofWords::tr("Höhe bis mm"), "number");
    addInput(html, "pages", PxProofWords::tr("Seitenzahl"), "number");
    closeFilter(html);
}

/** `prefix` is that of its state in the address. */
void addProducts(PxHtml *html, const PxProofCatalogue &catalogue,
                 const QVector<PxProofProduct> &products, const char *prefix,
                 const PxProofFolder &folder)
{
    QVector<ProductRow> rows;
    for (const PxProofProduct &product : products)
        rows.append({product, catalogue});
    html->open("div", {{"class", "list products"}, {"data-prefix", prefix}});
    if (!products.isEmpty())
        addFilter(html, rows);
    openTable(html, PxProofWords::tr("Tabelle der Produkte"), productColumns);
    for (const ProductRow &row : qAsConst(rows))
        addRow(html, row, folder);
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
    addChoice(html, "group", PxProofWords::tr("Produktgruppe"),
              choicesOf(catalogue.themes,
                        [](const PxProofTheme &theme) { return groupOf(theme.theme); }));
    closeFilter(html);
    openTable(html, PxProofWords::tr("Tabelle der Themen"), themeColumns);
    for (int i = 0; i < catalogue.themes.size(); ++i)
        addRow(html, catalogue.themes[i], productCounts[i]);
    closeTable(html);
    html->close();
}

} // namespace

QByteArray PxProofIndex::page(const PxProofCatalogue &catalogue, const PxProofFolder &folder)
{
    PxProofPage page(catalogue, catalogue.title);
    PxHtml &html = page.html();
    if (catalogue.diff) {
        page.addHeading(PxProofWords::tr("Änderungen"), "changes");
        PxProofDifferences::addSummary(&html, catalogue);
    }
    page.addHeading(PxProofWords::tr("Produkte"), "products");
    addProducts(&html, catalogue, catalogue.products, "", folder);
    if (!catalogue.legacyProducts.isEmpty()) {
        page.addHeading(PxProofWords::tr("Frühere Produkte"), "earlier");
        addProducts(&html, catalogue, catalogue.legacyProducts, "earlier-", folder);
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
