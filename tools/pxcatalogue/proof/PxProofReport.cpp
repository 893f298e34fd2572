#include "proof/PxProofReport.h"

#include "proof/PxProofWords.h"
#include "writing/PxHtml.h"
#include "writing/PxTerminal.h"

#include <QMap>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

using Section = PxReport::Section;

constexpr int longest = 10000; // characters of a value or an origin

/** The keys of values that are keywords. Other texts may look like one and are kept. */
constexpr const char *ofKeywords[] = {
    "class",     "orientation",  "assemblyWay",    "namingStyle", "pageType",
    "alignment", "imageEffects", "designElements", "type",        "group",
};

bool isOfKeywords(const char *key)
{
    return std::any_of(std::begin(ofKeywords), std::end(ofKeywords),
                       [key](const char *other) { return qstrcmp(key, other) == 0; });
}

/** Of a field or a column, which has a key and a format. */
template <typename Place>
QString textOf(const Place &place, const QJsonValue &value)
{
    const QString text = PxTerminal::shortened(PxProofWords::value(value, place.format), longest);
    if (!isOfKeywords(place.key))
        return text;
    QStringList words;
    for (const QString &word : text.split(", "))
        words.append(PxProofWords::keyword(word));
    return words.join(", ");
}

/** Null for none, so that no attribute is written. */
QString shortenedOrigin(const QString &origin)
{
    return origin.isEmpty() ? QString() : PxTerminal::shortened(origin, longest);
}

void addFields(PxHtml *html, const PxReport &report, const Section &section)
{
    html->open("table", {{"class", "values"}});
    html->open("tbody");
    for (const PxReport::Field &field : section.fields) {
        const QString text = textOf(field, field.value);
        if (text.isEmpty())
            continue;
        const QString origin = shortenedOrigin(report.origin(section, field));
        html->open("tr");
        html->element("th", PxProofWords::label(field.label), {{"scope", "row"}});
        html->element("td", text + PxReportValue::unit(field.format), {{"title", origin}});
        if (!origin.isEmpty())
            html->element("td", origin, {{"class", "origin"}, {"lang", "en"}});
        html->close();
    }
    html->close();
    html->close();
}

void addHeads(PxHtml *html, const Section &section)
{
    html->open("thead");
    html->open("tr");
    for (const PxReport::Column &column : section.columns) {
        if (column.format != PxReportFormat::JsonOnly)
            html->element("th",
                          PxProofWords::label(column.label) + PxReportValue::unit(column.format),
                          {{"scope", "col"}});
    }
    html->close();
    html->close();
}

/** Of each column that is shown, for each row. */
using Origins = QMap<int, QStringList>;

Origins originsOf(const PxReport &report, const Section &section)
{
    Origins origins;
    for (int i = 0; i < section.columns.size(); ++i) {
        if (section.columns[i].format == PxReportFormat::JsonOnly)
            continue;
        for (const QString &origin : report.origins(section, section.columns[i]))
            origins[i].append(shortenedOrigin(origin));
    }
    return origins;
}

void addRow(PxHtml *html, const Section &section, const Origins &origins, int row)
{
    html->open("tr");
    for (auto column = origins.begin(); column != origins.end(); ++column) {
        const int i = column.key();
        html->element("td", textOf(section.columns[i], section.rows[row][i]),
                      {{"title", column->at(row)}});
    }
    html->close();
}

/** Under a table: a line for each column, or for the rows of it that have the same origin. */
void addOrigins(PxHtml *html, const Section &section, const Origins &origins)
{
    html->open("details", {{"class", "origins"}});
    html->element("summary", PxProofWords::tr("Herkunft"));
    html->open("table", {{"class", "values"}});
    html->open("tbody");
    for (auto column = origins.begin(); column != origins.end(); ++column) {
        for (const PxReport::RowsOrigin &origin : PxReport::grouped(*column)) {
            const QString rows = PxProofWords::tr("Zeile %1").arg(origin.rows);
            html->open("tr");
            html->element("th", PxProofWords::label(section.columns[column.key()].label),
                          {{"scope", "row"}});
            html->element("td", origin.rows.isEmpty() ? QString() : rows);
            html->element("td", origin.origin, {{"class", "origin"}, {"lang", "en"}});
            html->close();
        }
    }
    html->close();
    html->close();
    html->close();
}

void addTable(PxHtml *html, const PxReport &report, const Section &section)
{
    html->open("div", {{"class", "wide"},
                       {"tabindex", "0"}, // it can be scrolled sideways
                       {"role", "region"},
                       {"aria-label", PxProofWords::heading(section.key, section.heading)}});
    html->open("table");
    addHeads(html, section);
    const Origins origins = originsOf(report, section);
    html->open("tbody");
    for (int row = 0; row < section.rows.size(); ++row)
        addRow(html, section, origins, row);
    html->close();
    html->close();
    html->close();
    if (report.hasOrigins())
        addOrigins(html, section, origins);
}

bool isEmpty(const Section &section)
{
    for (const PxReport::Field &field : section.fields) {
        if (!PxReportValue::text(field.value, field.format).isEmpty())
            return false;
    }
    return section.rows.isEmpty();
}

void addSection(PxHtml *html, const PxReport &report, const Section &section)
{
    if (section.columns.isEmpty())
        addFields(html, report, section);
    else
        addTable(html, report, section);
}

} // namespace

void PxProofReport::addTo(PxHtml *html, const PxReport &report)
{
    for (const Section &section : report.sections()) {
        if (isEmpty(section))
            continue;
        html->element("h3", PxProofWords::heading(section.key, section.heading));
        addSection(html, report, section);
    }
}

void PxProofReport::addTables(PxHtml *html, const PxReport &report)
{
    for (const Section &section : report.sections()) {
        if (!isEmpty(section))
            addSection(html, report, section);
    }
}
