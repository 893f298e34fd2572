#include "report/PxReport.h"

#include "report/PxNumberRanges.h"
#include "report/PxOriginColumn.h"
#include "writing/PxJsonLine.h"
#include "writing/PxTerminal.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

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

/** The number of parts if there is none with this key. */
template <typename Part, typename Key>
int indexOf(const QVector<Part> &parts, const Key &key)
{
    const auto found = std::find_if(parts.begin(), parts.end(), [&key](const Part &part) {
        return QLatin1String(part.key) == key;
    });
    return int(found - parts.begin());
}

/** The value at the rest of a JSON pointer; undefined if there is none. */
QJsonValue below(QJsonValue value, const QVector<QStringRef> &rest)
{
    for (const QStringRef &step : rest)
        value = value.isArray() ? QJsonValue(value[step.toInt()]) : QJsonValue(value[step]);
    return value;
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

void PxReport::addField(const char *section, const Field &field)
{
    this->section(section).fields.append(field);
}

void PxReport::addColumn(const char *section, const Column &column,
                         const QVector<QJsonValue> &values)
{
    Section &table = this->section(section);
    table.columns.append(column);
    for (int row = 0; row < table.rows.size(); ++row)
        table.rows[row].append(values[row]);
}

void PxReport::setValue(const char *section, const char *key, const QJsonValue &value, int row)
{
    Section &found = this->section(section);
    if (found.columns.isEmpty())
        found.fields[indexOf(found.fields, QLatin1String(key))].value = value;
    else
        found.rows[row].replace(indexOf(found.columns, QLatin1String(key)), value);
}

PxReport::Section &PxReport::section(const char *key)
{
    return m_sections[indexOf(m_sections, QLatin1String(key))];
}

const PxReport::Section *PxReport::find(const QString &key) const
{
    const int index = indexOf(m_sections, key);
    return index < m_sections.size() ? &m_sections[index] : nullptr;
}

QVector<QJsonValue> PxReport::column(const char *section, const char *key) const
{
    QVector<QJsonValue> values;
    const Section &table = m_sections[indexOf(m_sections, QLatin1String(section))];
    const int index = indexOf(table.columns, QLatin1String(key));
    for (const QJsonArray &row : table.rows)
        values.append(row[index]);
    return values;
}

bool PxReport::has(const QString &pointer) const
{
    const QVector<QStringRef> steps = pointer.splitRef('/', Qt::SkipEmptyParts);
    if (steps.isEmpty() || pointer == "/format" || pointer == "/lengthUnit")
        return true;
    const Section *found = find(steps[0].toString());
    if (!found || steps.size() == 1)
        return found;
    if (found->columns.isEmpty()) {
        const int field = indexOf(found->fields, steps[1]);
        return field < found->fields.size() &&
               (steps.size() == 2 ||
                !below(found->fields[field].value, steps.mid(2)).isUndefined());
    }
    const int row = steps[1].toInt();
    if (row >= found->rows.size() || steps.size() == 2)
        return row < found->rows.size();
    const int column = indexOf(found->columns, steps[2]);
    return column < found->columns.size() &&
           (steps.size() == 3 || !below(found->rows[row][column], steps.mid(3)).isUndefined());
}

void PxReport::setOrigins(const QJsonObject &origins,
                          const std::function<QString(const QString &pointer)> &originAt)
{
    m_origins = origins;
    m_originAt = originAt;
}

QJsonObject PxReport::json() const
{
    QJsonObject json{{"format", formatVersion}, {"lengthUnit", lengthUnit}};
    for (const Section &section : m_sections)
        json.insert(section.key, jsonOf(section));
    if (m_originAt)
        json.insert("origins", m_origins);
    return json;
}

QJsonValue PxReport::jsonOf(const Section &section)
{
    if (section.columns.isEmpty()) {
        QJsonObject object;
        for (const Field &field : section.fields)
            object.insert(field.key, field.value);
        return object;
    }
    QJsonArray array;
    for (const QJsonArray &row : section.rows) {
        QJsonObject object;
        for (int i = 0; i < section.columns.size(); ++i)
            object.insert(section.columns[i].key, row[i]);
        array.append(object);
    }
    return array;
}

void PxReport::addTo(PxJsonLine *line) const
{
    for (const Section &section : m_sections) {
        if (section.columns.isEmpty()) {
            line->beginObject(section.key);
            for (const Field &field : section.fields) {
                if (field.use == Exported)
                    line->add(field.key, field.value);
            }
            line->endObject();
            continue;
        }
        line->beginArray(section.key);
        for (const QJsonArray &row : section.rows) {
            line->beginObject();
            for (int i = 0; i < section.columns.size(); ++i) {
                if (section.columns[i].use == Exported)
                    line->add(section.columns[i].key, row[i]);
            }
            line->endObject();
        }
        line->endArray();
    }
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

QString PxReport::origin(const Section &section, const Field &field) const
{
    return m_originAt ? m_originAt('/' + QString(section.key) + '/' + field.key) : QString();
}

QStringList PxReport::origins(const Section &section, const Column &column) const
{
    QStringList origins;
    const QString table = '/' + QString(section.key) + '/';
    for (int row = 0; row < section.rows.size(); ++row)
        origins.append(m_originAt ? m_originAt(table + QString::number(row) + '/' + column.key)
                                  : QString());
    return origins;
}

QVector<PxReport::RowsOrigin> PxReport::grouped(const QStringList &originsOfRows)
{
    QStringList different;
    QHash<QString, QList<int>> rowsOf;
    for (int row = 0; row < originsOfRows.size(); ++row) {
        const QString &origin = originsOfRows[row];
        if (!rowsOf.contains(origin))
            different.append(origin);
        rowsOf[origin].append(row + 1);
    }
    QVector<RowsOrigin> origins;
    for (const QString &origin : qAsConst(different))
        origins.append(
            {different.size() == 1 ? QString() : PxNumberRanges::text(rowsOf[origin]), origin});
    return origins;
}

QStringList PxReport::linesWithOrigins(const Section &section, int width) const
{
    PxOriginColumn lines;
    for (const Field &field : section.fields) {
        const QString text = PxReportValue::text(field.value, field.format);
        if (!text.isEmpty())
            lines.add(QString::fromUtf8(field.label), text + PxReportValue::unit(field.format),
                      origin(section, field));
    }
    if (section.columns.isEmpty())
        return lines.lines(width);
    for (const Column &column : section.columns) {
        if (column.format == PxReportFormat::JsonOnly)
            continue;
        for (const RowsOrigin &origin : grouped(origins(section, column)))
            lines.add("  " + QString::fromUtf8(column.label),
                      origin.rows.isEmpty() ? QString() : "row " + origin.rows, origin.origin);
    }
    return table(section).lines(width) + lines.lines(width);
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
        const int room = width - indent.size();
        for (const QString &line : m_originAt ? linesWithOrigins(section, room) : table.lines(room))
            text.addLine(PxTerminal::shortened(indent + line, width));
    }
    return text;
}
