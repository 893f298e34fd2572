#include "proof/PxProofReport.h"

#include "proof/PxHtml.h"
#include "proof/PxProofWords.h"
#include "report/PxReport.h"

namespace {

QString textOf(const QJsonValue &value, PxReportFormat format)
{
    return value.isBool() ? PxProofWords::yesOrNo(value.toBool())
                          : PxReportValue::text(value, format);
}

void addFields(const PxReport::Section &section, PxHtml *html)
{
    html->open("table", {{"class", "values"}});
    html->open("tbody");
    for (const PxReport::Field &field : section.fields) {
        const QString text = textOf(field.value, field.format);
        if (text.isEmpty())
            continue;
        html->open("tr");
        html->element("th", PxProofWords::label(field.label), {{"scope", "row"}});
        html->element("td", text + PxReportValue::unit(field.format));
        html->close();
    }
    html->close();
    html->close();
}

void addTable(const PxReport::Section &section, PxHtml *html)
{
    html->open("div", {{"class", "wide"}});
    html->open("table");
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
    html->open("tbody");
    for (const QJsonArray &row : section.rows) {
        html->open("tr");
        for (int i = 0; i < section.columns.size(); ++i) {
            if (section.columns[i].format != PxReportFormat::JsonOnly)
                html->element("td", textOf(row[i], section.columns[i].format));
        }
        html->close();
    }
    html->close();
    html->close();
    html->close();
}

bool isEmpty(const PxReport::Section &section)
{
    for (const PxReport::Field &field : section.fields) {
        if (!PxReportValue::text(field.value, field.format).isEmpty())
            return false;
    }
    return section.rows.isEmpty();
}

} // namespace

void PxProofReport::addTo(PxHtml *html, const PxReport &report)
{
    for (const PxReport::Section &section : report.sections()) {
        if (isEmpty(section))
            continue;
        html->element("h3", PxProofWords::heading(section.key, section.heading));
        if (section.columns.isEmpty())
            addFields(section, html);
        else
            addTable(section, html);
    }
}
