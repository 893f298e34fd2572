#include "proof/PxProofProductPage.h"

#include "format/PxCatalogueKeywords.h"
#include "origins/PxOriginFile.h"
#include "origins/PxOrigins.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofDifferences.h"
#include "proof/PxProofDrawings.h"
#include "proof/PxProofFindings.h"
#include "proof/PxProofPage.h"
#include "proof/PxProofReport.h"
#include "proof/PxProofWords.h"
#include "proof/PxSpinePlot.h"
#include "report/PxProductReport.h"
#include "report/PxShownProduct.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

#include <QHash>
#include <QJsonArray>
#include <QSet>

namespace {

constexpr int longestName = 1000;
// In a large catalogue each page would link to all others.
constexpr int mostCompatible = 500;
constexpr int mostThemes = 500;

/** What the page is about. */
struct Subject
{
    const PxProofCatalogue &catalogue;
    const PxProofProduct &product;
    PxShownProduct shown;
    PxOriginFiles files;
    QVector<const PxProofProduct *> compatible; ///< in the order of the catalogue
};

void addLink(PxHtml *html, const QString &name, const QString &page)
{
    html->element("a", PxTerminal::shortened(name, longestName), {{"href", page + ".html"}});
}

/** How many are left out of a list. */
void addRest(PxHtml *html, int count)
{
    if (count > 0)
        html->element("p", PxProofWords::tr("Weitere: %1").arg(count));
}

void addChanges(PxHtml *html, const Subject &subject)
{
    PxProofDifferences::addTo(html, subject.product.changes);
}

void addFindings(PxHtml *html, const Subject &subject)
{
    const PxOriginFile &file = subject.files.product;
    PxProofFindings::addTo(html, subject.product.findings, subject.catalogue.fileNames,
                           file.path().isEmpty() ? nullptr : &file.source());
}

void addDrawings(PxHtml *html, const Subject &subject)
{
    PxProofDrawings::addTo(html, subject.product);
}

bool hasSpine(const Subject &subject)
{
    return subject.shown.product->hasSpine() && !subject.shown.offeredPageCounts.isEmpty();
}

void addSpine(PxHtml *html, const Subject &subject)
{
    QVector<QPair<int, int>> widths;
    for (const int count : subject.shown.offeredPageCounts)
        widths.append({count, subject.shown.product->spineWidth(count)});
    PxSpinePlot(widths).addTo(html);
}

void addValues(PxHtml *html, const Subject &subject)
{
    PxReport report = PxProductReport::of(subject.shown);
    const PxOrigins origins(subject.shown, subject.files, report);
    report.setOrigins({},
                      [&origins](const QString &pointer) { return origins.at(pointer).text(); });
    PxProofReport::addTo(html, report);
}

QJsonArray valuesOf(const PxReport &report)
{
    QJsonArray values;
    for (const PxReport::Section &section : report.sections()) {
        for (const PxReport::Field &field : section.fields)
            values.append(field.value);
        for (const QJsonArray &row : section.rows)
            values.append(row);
    }
    return values;
}

/** Themes that show the product alike, by their indices in the catalogue. */
struct Alike
{
    PxReport report;
    QVector<int> themes;
};

QVector<Alike> themesAlike(const Subject &subject)
{
    const QStringList withTemplates = subject.shown.product->themesWithDefaultTemplates();
    QVector<Alike> groups;
    QHash<QJsonArray, int> groupOf;
    int usual = -1; // the group of all themes without templates of their own, but for "normal"
    for (const int index : subject.product.themes.mid(0, mostThemes)) {
        const PxTheme &theme = subject.catalogue.themes[index].theme;
        const bool isUsual = theme.isThemeWithContent() && !withTemplates.contains(theme.id());
        int group = isUsual ? usual : -1;
        if (group == -1) {
            const PxReport report = PxProductReport::ofTheme(subject.shown, theme);
            const QJsonArray values = valuesOf(report);
            if (!groupOf.contains(values)) {
                groupOf.insert(values, groups.size());
                groups.append({report, {}});
            }
            group = groupOf[values];
        }
        if (isUsual)
            usual = group;
        groups[group].themes.append(index);
    }
    return groups;
}

void addThemes(PxHtml *html, const Subject &subject)
{
    for (const auto &[report, themes] : themesAlike(subject)) {
        html->open("ul", {{"class", "names"}});
        for (const int theme : themes) {
            html->open("li");
            addLink(html, subject.catalogue.themes[theme].theme.id(),
                    subject.catalogue.themes[theme].page);
            html->close();
        }
        html->close();
        PxProofReport::addTables(html, report);
    }
    addRest(html, subject.product.themes.size() - mostThemes);
}

void addSwatch(PxHtml *html, const QColor &color)
{
    html->open("svg", {{"class", "swatch"}, {"viewBox", "0 0 1 1"}, {"aria-hidden", "true"}});
    html->element("rect", QString(), {{"width", "1"}, {"height", "1"}, {"fill", color.name()}});
    html->close();
}

/** A variant whose name is a colour has a swatch of it. */
void addVariants(PxHtml *html, const Subject &subject)
{
    html->open("ul", {{"class", "variants"}});
    for (const PxProofVariant &variant : subject.product.variants) {
        html->open("li");
        if (variant.color.isValid())
            addSwatch(html, variant.color);
        html->text(QString(" %1 (%2)").arg(variant.name, variant.identifier));
        html->close();
    }
    html->close();
}

/** The criteria in which each compatible product agrees with this one, as bits. */
QHash<PxProductType, int> agreements(const PxProofProduct &product)
{
    QHash<PxProductType, int> agreeing;
    for (const auto &row : criterionRows) {
        for (const PxProductType &other :
             product.registry->findCompatibleProducts(product.type, row.value))
            agreeing[other] |= row.value;
    }
    return agreeing;
}

QString textOf(int agreeing)
{
    QStringList criteria;
    for (const auto &row : criterionRows) {
        if (agreeing & row.value)
            criteria.append(PxProofWords::keyword(row.keyword));
    }
    return criteria.isEmpty() ? QString()
                              : ' ' + PxProofWords::tr("(gleich: %1)").arg(criteria.join(", "));
}

void addCompatible(PxHtml *html, const Subject &subject)
{
    const QHash<PxProductType, int> agreeing = agreements(subject.product);
    QHash<int, QString> texts; // by criteria; there are few
    html->open("ul");
    for (const PxProofProduct *other : subject.compatible.mid(0, mostCompatible)) {
        const int criteria = agreeing.value(other->type);
        if (!texts.contains(criteria))
            texts.insert(criteria, textOf(criteria));
        html->open("li");
        addLink(html, other->type.productName(), other->page);
        if (!texts[criteria].isEmpty())
            html->element("span", texts[criteria], {{"class", "quiet"}});
        html->close();
    }
    html->close();
    addRest(html, subject.compatible.size() - mostCompatible);
}

/** The sections of the page, in their order. */
constexpr struct
{
    const char *id;
    const char *heading;
    void (*add)(PxHtml *html, const Subject &subject);
    bool (*isThere)(const Subject &subject);
} sections[] = {
    // clang-format off
    {"changes", QT_TRANSLATE_NOOP("PxProof", "Änderungen"), addChanges, [](const Subject &subject) { return subject.catalogue.diff.has_value(); }},
    {"findings", QT_TRANSLATE_NOOP("PxProof", "Befunde"), addFindings, [](const Subject &) { return true; }},
    {"drawings", QT_TRANSLATE_NOOP("PxProof", "Zeichnungen"), addDrawings, [](const Subject &) { return true; }},
    {"spine", QT_TRANSLATE_NOOP("PxProof", "Rücken"), addSpine, hasSpine},
    {"values", QT_TRANSLATE_NOOP("PxProof", "Alle Werte"), addValues, [](const Subject &) { return true; }},
    {"in-themes", QT_TRANSLATE_NOOP("PxProof", "Seiten und Vorlagen in Themen"), addThemes, [](const Subject &subject) { return !subject.product.themes.isEmpty(); }},
    {"variants", QT_TRANSLATE_NOOP("PxProof", "Varianten"), addVariants, [](const Subject &subject) { return !subject.product.variants.isEmpty(); }},
    {"compatible", QT_TRANSLATE_NOOP("PxProof", "Austauschbar mit"), addCompatible, [](const Subject &subject) { return !subject.compatible.isEmpty(); }},
    // clang-format on
};

void addContents(PxHtml *html, const Subject &subject)
{
    html->open("nav", {{"class", "contents"}, {"aria-label", PxProofWords::tr("Diese Seite")}});
    for (const auto &section : sections) {
        if (section.isThere(subject))
            html->element("a", PxProofWords::tr(section.heading),
                          {{"href", QString("#") + section.id}});
    }
    html->close();
}

QVector<const PxProofProduct *> compatibleWith(const PxProofCatalogue &catalogue,
                                               const PxProofProduct &product)
{
    if (product.isLegacy)
        return {};
    const PxProductTypeList types =
        product.registry->findCompatibleProducts(product.type, PxProductComparationNone);
    const QSet<PxProductType> compatible(types.begin(), types.end());
    QVector<const PxProofProduct *> others;
    for (const PxProofProduct &other : catalogue.products) {
        if (other.type != product.type && compatible.contains(other.type))
            others.append(&other);
    }
    return others;
}

} // namespace

QByteArray PxProofProductPage::page(const PxProofCatalogue &catalogue,
                                    const PxProofProduct &product)
{
    const PxShownProduct shown =
        PxProductReport::shown(product.registry, product.type, 0, QString());
    const Subject subject{catalogue, product, shown, PxOriginFiles(shown, catalogue.files),
                          compatibleWith(catalogue, product)};
    PxProofPage page(catalogue, product.type.productName());
    PxHtml &html = page.html();
    if (product.isLegacy)
        html.element("p", PxProofWords::tr("Aus einem früheren Katalog"), {{"class", "quiet"}});
    html.element("p", product.type.shortProductName(), {{"class", "quiet"}});
    addContents(&html, subject);
    html.open("div", {{"class", "product"}});
    for (const auto &section : sections) {
        if (!section.isThere(subject))
            continue;
        html.open("section", {{"aria-labelledby", section.id}});
        page.addHeading(PxProofWords::tr(section.heading), section.id);
        section.add(&html, subject);
        html.close();
    }
    html.element("p",
                 PxProofWords::tr("Auf Papier steht eine Auswahl. Die Seite am Bildschirm zeigt "
                                  "alles, auch woher die Werte kommen."),
                 {{"class", "on-paper"}});
    html.close();
    return page.finished();
}
