#include "PxFormatTables.h"

#include "PxFormatCells.h"
#include "format/PxFormat.h"
#include "format/PxKeywordRows.h"

#include <QMap>
#include <QVector>

#include <algorithm>

namespace {

/** All cells of a line; a table shows some of them. */
struct Line
{
    QString element;
    QString attribute;
    QString keyword;
    QString value;
    QString type;
    QString absent;
    QString meaning;
    QString size;
    QString place; ///< element and attribute in one cell
};

struct Column
{
    const char *heading;
    QString Line::*cell;
};

using Lines = QVector<Line>;
using Columns = QVector<Column>;
using Kind = PxFileKind;

enum class Attributes {
    Main,      ///< all, with a single line for those that another section documents
    OfSections ///< only those that another section documents
};

constexpr Column type = {"Type", &Line::type};
constexpr Column absent = {"Absent", &Line::absent};
constexpr Column absentOrUnreadable = {"Absent or unreadable", &Line::absent};
constexpr Column meaning = {"Meaning", &Line::meaning};

QString code(const QString &name)
{
    return QStringLiteral("`%1`").arg(name);
}

const PxElementRow &at(Kind kind, const char *path)
{
    return *PxFormat::find(kind, QLatin1String(path));
}

Line attributeLine(const PxAttributeRow &row, const QString &names)
{
    Line line;
    line.attribute = names;
    line.type = PxFormatCells::type(row);
    line.absent = PxFormatCells::absent(row);
    line.meaning = QString::fromUtf8(row.cells.meaning);
    return line;
}

Lines attributeLines(const PxElementRow &element, Attributes which = Attributes::Main)
{
    Lines lines;
    const PxAttributeRow *const end = element.attributes.end();
    for (const PxAttributeRow *row = element.attributes.begin(); row != end;) {
        const PxAttributeRow *next = row + 1;
        if (row->cells.section && which == Attributes::Main) {
            next = std::find_if(next, end, [row](const PxAttributeRow &other) {
                return other.cells.section != row->cells.section;
            });
            Line line =
                attributeLine(*row, code(row->name) + QStringLiteral(" … ") + code(next[-1].name));
            line.absent.clear();
            line.meaning = QString::fromUtf8(row->cells.section);
            lines.append(line);
        } else {
            next = std::find_if(next, end,
                                [](const PxAttributeRow &other) { return other.cells.meaning; });
            QStringList names;
            for (const PxAttributeRow *named = row; named != next; ++named)
                names.append(code(named->name));
            const QLatin1String separator(row->type == PxValueType::RectanglePart ? " " : ", ");
            if (row->cells.section || which == Attributes::Main)
                lines.append(attributeLine(*row, names.join(separator)));
        }
        row = next;
    }
    return lines;
}

/** One line for the element itself if it has cells of its own, else one for each attribute. */
Lines elementLines(const PxElementRow &row)
{
    Lines lines;
    if (row.cells.contents || row.absent) {
        Line line;
        line.type = QString::fromUtf8(row.cells.contents);
        line.absent = PxFormatCells::absent(row);
        line.meaning = QString::fromUtf8(row.cells.meaning);
        lines.append(line);
    } else {
        lines = attributeLines(row);
    }
    for (Line &line : lines) {
        line.element = code(row.name);
        line.place = QStringLiteral("%1 %2").arg(line.element, line.attribute).trimmed();
    }
    return lines;
}

Lines childLines(const PxElementRow &parent)
{
    Lines lines;
    for (const PxElementRow &child : parent.children)
        lines += elementLines(child);
    return lines;
}

Lines keywordLines(PxKeywordSet set)
{
    Lines lines;
    for (const PxKeywordTableRow &row : PxFormat::keywords(set).keywords) {
        if (row.meaning.isNull()) {
            lines.last().keyword += QStringLiteral(", ") + code(row.keyword);
            continue;
        }
        Line line;
        line.keyword = code(row.keyword);
        if (row.note)
            line.keyword += QStringLiteral(" (%1)").arg(QString::fromUtf8(row.note));
        line.value = QString::number(row.value);
        line.meaning = row.meaning;
        line.size = QString::fromUtf8(row.size);
        lines.append(line);
    }
    return lines;
}

QStringList table(const Columns &columns, const Lines &lines)
{
    QString headings(QLatin1Char('|'));
    QString rule(QLatin1Char('|'));
    for (const Column &column : columns) {
        headings += QStringLiteral(" %1 |").arg(QLatin1String(column.heading));
        rule += QStringLiteral("---|");
    }
    QStringList rows = {headings, rule};
    for (const Line &line : lines) {
        QString row(QLatin1Char('|'));
        for (const Column &column : columns) {
            const QString cell = line.*column.cell;
            row += cell.isEmpty() ? QStringLiteral(" |") : QStringLiteral(" %1 |").arg(cell);
        }
        rows.append(row);
    }
    return rows;
}

QStringList attributeTable(const char *heading, const Column &absence, const Lines &lines)
{
    return table({{heading, &Line::attribute}, type, absence, meaning}, lines);
}

void addAttributeTables(QMap<QString, QStringList> *tables)
{
    constexpr struct
    {
        const char *name;
        const char *heading;
        Kind kind;
        const char *path;
        Column absence;
    } rows[] = {
        // clang-format off
        {"product attributes", "Attribute", Kind::Product, "product", absentOrUnreadable},
        {"usablesize attributes", "Attribute of `usablesize`", Kind::Product, "product/usablesize", absentOrUnreadable},
        {"spine attributes", "Attribute of `spine`", Kind::Product, "product/spines/spine", absentOrUnreadable},
        {"surrounding attributes", "Attribute", Kind::Product, "product/surroundings/surrounding", absent},
        {"defaults attributes", "Attribute", Kind::Product, "product/defaults/defaults", absent},
        {"rotationredirect attributes", "Attribute", Kind::Product, "product/rotationredirects/rotationredirect", absentOrUnreadable},
        {"contentredirect attributes", "Attribute", Kind::Product, "product/contentredirects/contentredirect", absentOrUnreadable},
        {"barcode attributes", "Attribute", Kind::Product, "product/barcodes/barcode", absentOrUnreadable},
        {"classification attributes", "Attribute", Kind::Product, "product/classification", absent},
        {"producttype attributes", "Attribute", Kind::ProductTypes, "producttype", absentOrUnreadable},
        {"theme attributes", "Attribute", Kind::Theme, "theme", absentOrUnreadable},
        {"logo attributes", "Attribute", Kind::Theme, "theme/logos/logo", absentOrUnreadable},
        // clang-format on
    };
    for (const auto &row : rows)
        tables->insert(row.name, attributeTable(row.heading, row.absence,
                                                attributeLines(at(row.kind, row.path))));
    tables->insert(
        "product size attributes",
        attributeTable("Attribute of `product`", absentOrUnreadable,
                       attributeLines(at(Kind::Product, "product"), Attributes::OfSections)));
    tables->insert("frame attributes", table({{"Attribute", &Line::attribute}, type, meaning},
                                             attributeLines(at(Kind::Frames, "frame"))));
    tables->insert("defaultcategories attributes",
                   table({{"Attribute", &Line::attribute}, {"Material", &Line::meaning}},
                         attributeLines(at(Kind::Theme, "theme/defaultcategories"))));
}

void addElementTables(QMap<QString, QStringList> *tables)
{
    tables->insert("production elements",
                   table({{"Element", &Line::element},
                          {"Contents", &Line::type},
                          {"Absent or empty", &Line::absent},
                          meaning},
                         elementLines(at(Kind::Product, "product/productionnumbering")) +
                             elementLines(at(Kind::Product, "product/pageswithcontent")) +
                             elementLines(at(Kind::Product, "product/extra_production_pages"))));
    tables->insert("item elements",
                   table({{"In `item`", &Line::place}, type, absentOrUnreadable, meaning},
                         childLines(at(Kind::Product, "product/extra_production_pages/item"))));
    tables->insert("pageNumberConfig elements",
                   table({{"Child", &Line::element},
                          {"Attribute", &Line::attribute},
                          type,
                          absentOrUnreadable,
                          meaning},
                         childLines(at(Kind::Product, "product/pageNumberConfig"))));
    tables->insert("theme elements", table({{"Element", &Line::element},
                                            {"Attribute", &Line::attribute},
                                            type,
                                            absentOrUnreadable,
                                            meaning},
                                           childLines(at(Kind::Theme, "theme"))));
}

void addKeywordTables(QMap<QString, QStringList> *tables)
{
    constexpr Column keyword = {"Keyword", &Line::keyword};
    constexpr Column value = {"Value", &Line::value};
    const struct
    {
        PxKeywordSet set;
        Columns columns;
    } rows[] = {
        {PxKeywordSet::Binding, {keyword, value, {"Binding", &Line::meaning}}},
        {PxKeywordSet::Paper, {keyword, value, {"Paper", &Line::meaning}}},
        {PxKeywordSet::SizeClass, {keyword, value, {"Class", &Line::meaning}}},
        {PxKeywordSet::PageType, {keyword, value, {"Page", &Line::meaning}, {"Size", &Line::size}}},
        {PxKeywordSet::PageNamingStyle, {keyword, value}},
        {PxKeywordSet::AssemblyWay, {keyword, value, {"Who", &Line::meaning}}},
        {PxKeywordSet::ImageEffect, {keyword, value, {"Effect", &Line::meaning}}},
        {PxKeywordSet::SurroundingType, {keyword, value, {"Painted", &Line::meaning}}},
        {PxKeywordSet::Alignment, {keyword, value, {"Position", &Line::meaning}}},
        {PxKeywordSet::ProductGroup, {keyword, value, {"Group", &Line::meaning}}},
        {PxKeywordSet::Orientation, {keyword, value}},
        {PxKeywordSet::Material, {keyword, {"Display name", &Line::meaning}}},
    };
    for (const auto &row : rows)
        tables->insert(QLatin1String(PxFormat::keywords(row.set).name) + " keywords",
                       table(row.columns, keywordLines(row.set)));
}

} // namespace

PxFormatTables::PxFormatTables(const QString &document)
{
    const QString start = QStringLiteral("<!-- table: ");
    const QString end = QStringLiteral("<!-- end of table -->");
    QMap<QString, QStringList> tables;
    addAttributeTables(&tables);
    addElementTables(&tables);
    addKeywordTables(&tables);

    bool isInTable = false;
    for (const QString &line : document.split(QLatin1Char('\n'))) {
        if (line == end) {
            if (!isInTable)
                m_problems.append(QStringLiteral("an \"end of table\" without a table"));
            isInTable = false;
        } else if (line.startsWith(start)) {
            const QString name = line.mid(start.size()).section(QStringLiteral(" -->"), 0, 0);
            if (isInTable)
                m_problems.append(QStringLiteral("no \"end of table\" before \"%1\"").arg(name));
            if (!tables.contains(name))
                m_problems.append(
                    QStringLiteral("table \"%1\" is unknown or appears twice").arg(name));
            m_lines.append(line);
            m_lines += tables.take(name);
            isInTable = true;
            continue;
        }
        if (!isInTable)
            m_lines.append(line);
    }
    if (isInTable)
        m_problems.append(QStringLiteral("no \"end of table\" for the last table"));
    for (auto left = tables.keyBegin(); left != tables.keyEnd(); ++left)
        m_problems.append(QStringLiteral("no table \"%1\"").arg(*left));
}
