#include "report/PxReport.h"

#include "writing/PxTerminal.h"

#include <QStringList>

namespace {

constexpr int labelWidth = 22; // the same in all sections, so that the values are aligned

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
    m_sections.append({key, heading, fields, {}, {}});
}

void PxReport::addTable(const char *key, const char *heading, const QVector<Column> &columns,
                        const QVector<QJsonArray> &rows)
{
    m_sections.append({key, heading, {}, columns, rows});
}

QJsonObject PxReport::json() const
{
    QJsonObject json = sections(ForThisPageCount);
    json.insert("format", formatVersion);
    json.insert("lengthUnit", lengthUnit);
    return json;
}

QJsonObject PxReport::sections(Validity most) const
{
    QJsonObject json;
    for (const Section &section : m_sections)
        json.insert(QLatin1String(section.key), section.columns.isEmpty()
                                                    ? QJsonValue(object(section, most))
                                                    : QJsonValue(array(section, most)));
    return json;
}

QJsonObject PxReport::object(const Section &section, Validity most)
{
    QJsonObject object;
    for (const Field &field : section.fields) {
        if (field.validity <= most)
            object.insert(QLatin1String(field.key), field.value);
    }
    return object;
}

QJsonArray PxReport::array(const Section &section, Validity most)
{
    QJsonArray array;
    for (const QJsonArray &row : section.rows) {
        QJsonObject object;
        for (int i = 0; i < section.columns.size(); ++i) {
            if (section.columns[i].validity <= most)
                object.insert(QLatin1String(section.columns[i].key), row[i]);
        }
        array.append(object);
    }
    return array;
}

PxTextTable PxReport::table(const Section &section)
{
    PxTextTable table;
    if (section.columns.isEmpty()) {
        table.addColumn(QString(), PxTextTable::Kind::Key);
        table.addColumn(QString(), PxTextTable::Kind::Text);
    }
    for (const Field &field : section.fields) {
        const QString text = PxReportValue::text(field.value, field.format);
        if (!text.isEmpty())
            table.addRow({QString::fromUtf8(field.label).leftJustified(labelWidth),
                          text + PxReportValue::unit(field.format)});
    }
    for (const Column &column : section.columns) {
        if (column.format != PxReportFormat::JsonOnly)
            table.addColumn(column.label + PxReportValue::unit(column.format),
                            kindOf(column.format), column.givesWay);
    }
    for (const QJsonArray &row : section.rows) {
        QStringList texts;
        for (int i = 0; i < section.columns.size(); ++i) {
            if (section.columns[i].format != PxReportFormat::JsonOnly)
                texts.append(PxReportValue::text(row[i], section.columns[i].format));
        }
        table.addRow(texts);
    }
    return table;
}

PxOutputText PxReport::text(int width) const
{
    PxOutputText text;
    bool isFirst = true;
    for (const Section &section : m_sections) {
        const PxTextTable table = PxReport::table(section);
        if (table.isEmpty())
            continue;
        const QString indent = section.heading.isEmpty() ? QString() : "  ";
        if (!isFirst)
            text.addLine(QString());
        isFirst = false;
        if (!section.heading.isEmpty())
            text.addLine(PxTerminal::shortened(section.heading, width));
        for (const QString &line : table.lines(width - indent.size()))
            text.addLine(PxTerminal::shortened(indent + line, width));
    }
    return text;
}
