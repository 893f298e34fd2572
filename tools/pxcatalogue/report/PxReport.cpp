#include "report/PxReport.h"

#include "writing/PxTerminal.h"

#include <QStringList>

namespace {

constexpr int formatVersion = 1; // raise it when JSON changes, except for new members
constexpr int labelWidth = 22;   // the same in all sections, so that the values are aligned

PxTextTable::Kind kindOf(PxReportFormat format)
{
    switch (format) {
    case PxReportFormat::Key:
        return PxTextTable::Kind::Key;
    case PxReportFormat::Plain:
    case PxReportFormat::Name:
    case PxReportFormat::PageNumbers:
        return PxTextTable::Kind::Text;
    default:
        return PxTextTable::Kind::Number;
    }
}

} // namespace

void PxReport::addFields(const char *key, const char *heading, const QVector<Field> &fields)
{
    QJsonObject json;
    PxTextTable table;
    table.addColumn(QString(), PxTextTable::Kind::Key);
    table.addColumn(QString(), PxTextTable::Kind::Text);
    for (const Field &field : fields) {
        json.insert(field.key, field.value);
        const QString text = PxReportValue::text(field.value, field.format);
        if (text.isEmpty())
            continue;
        table.addRow({QString::fromUtf8(field.label).leftJustified(labelWidth),
                      text + PxReportValue::unit(field.format)});
    }
    m_json.insert(key, json);
    m_sections.append({heading, table});
}

void PxReport::addTable(const char *key, const char *heading, const QVector<Column> &columns,
                        const QVector<QJsonArray> &rows)
{
    PxTextTable table;
    for (const Column &column : columns) {
        if (column.format != PxReportFormat::JsonOnly)
            table.addColumn(column.label + PxReportValue::unit(column.format),
                            kindOf(column.format), column.givesWay);
    }
    QJsonArray json;
    for (const QJsonArray &row : rows) {
        QJsonObject object;
        QStringList texts;
        for (int i = 0; i < columns.size(); ++i) {
            object.insert(columns[i].key, row[i]);
            if (columns[i].format != PxReportFormat::JsonOnly)
                texts.append(PxReportValue::text(row[i], columns[i].format));
        }
        json.append(object);
        table.addRow(texts);
    }
    m_json.insert(key, json);
    m_sections.append({heading, table});
}

QJsonObject PxReport::json() const
{
    QJsonObject json = m_json;
    json.insert("format", formatVersion);
    json.insert("lengthUnit", "tenths of a millimetre");
    return json;
}

PxOutputText PxReport::text(int width) const
{
    PxOutputText text;
    bool isFirst = true;
    for (const Section &section : m_sections) {
        if (section.table.isEmpty())
            continue;
        const QString indent = section.heading.isEmpty() ? QString() : "  ";
        if (!isFirst)
            text.addLine(QString());
        isFirst = false;
        if (!section.heading.isEmpty())
            text.addLine(PxTerminal::shortened(section.heading, width));
        for (const QString &line : section.table.lines(width - indent.size()))
            text.addLine(PxTerminal::shortened(indent + line, width));
    }
    return text;
}
