#include "PxReport.h"

#include "PxTerminal.h"

#include <QJsonDocument>

namespace {

constexpr int formatVersion = 1; // a new member keeps it, any other change of JSON raises it
constexpr int labelWidth = 22;   // one width for all sections, so that the values stand in a line

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
        json.insert(QLatin1String(field.key), field.value);
        const QString text = PxReportValue::text(field.value, field.format);
        if (text.isEmpty())
            continue;
        table.addRow({QString::fromUtf8(field.label).leftJustified(labelWidth),
                      text + PxReportValue::unit(field.format)});
    }
    m_json.insert(QLatin1String(key), json);
    m_sections.append({QString::fromUtf8(heading), table});
}

void PxReport::addTable(const char *key, const char *heading, const QVector<Column> &columns,
                        const QVector<QJsonArray> &rows)
{
    PxTextTable table;
    for (const Column &column : columns) {
        if (column.format != PxReportFormat::JsonOnly)
            table.addColumn(QString::fromUtf8(column.label) + PxReportValue::unit(column.format),
                            kindOf(column.format));
    }
    QJsonArray json;
    for (const QJsonArray &row : rows) {
        QJsonObject object;
        QStringList texts;
        for (int i = 0; i < columns.size(); ++i) {
            object.insert(QLatin1String(columns[i].key), row[i]);
            if (columns[i].format != PxReportFormat::JsonOnly)
                texts.append(PxReportValue::text(row[i], columns[i].format));
        }
        json.append(object);
        table.addRow(texts);
    }
    m_json.insert(QLatin1String(key), json);
    m_sections.append({QString::fromUtf8(heading), table});
}

QByteArray PxReport::json() const
{
    QJsonObject json = m_json;
    json.insert(QStringLiteral("format"), formatVersion);
    json.insert(QStringLiteral("lengthUnit"), QStringLiteral("tenths of a millimetre"));
    return QJsonDocument(json).toJson();
}

QString PxReport::text(int width) const
{
    QStringList lines;
    for (const Section &section : m_sections) {
        if (section.table.isEmpty())
            continue;
        const QString indent = section.heading.isEmpty() ? QString() : QStringLiteral("  ");
        if (!lines.isEmpty())
            lines.append(QString());
        if (!section.heading.isEmpty())
            lines.append(PxTerminal::shortened(section.heading, width));
        for (const QString &line : section.table.lines(width - indent.size()))
            lines.append(PxTerminal::shortened(indent + line, width));
    }
    lines.append(QString());
    return lines.join(QLatin1Char('\n'));
}
