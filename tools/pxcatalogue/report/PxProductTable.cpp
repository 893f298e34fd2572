#include "report/PxProductTable.h"

#include "report/PxCatalogueProducts.h"

#include <PxProductProperties.h>

#include <QJsonArray>

#include <algorithm>
#include <iterator>

namespace {

using Format = PxReportFormat;

/** A column; if it is not shown, only JSON has it unless it is chosen. */
struct ProductColumn
{
    PxReport::Column column;
    int givesWay = 0;
    bool isShown = true;
};

// clang-format off
constexpr ProductColumn productColumns[] = {
    {{"name", "Name", Format::Key}},
    {{"class", "Class", Format::Key}, 5},
    {{"size", "Size", Format::Size}},
    {{"binding", "Binding", Format::Name}, 4},
    {{"paper", "Paper", Format::Name}, 2},
    {{"pageCounts", "Pages", Format::PageCounts}},
    {{"orientation", "Orientation", Format::Plain}, 1},
    {{"isOffered", "Offered", Format::Key}, 3},
    {{"code", "Code", Format::Key}, 0, false},
    {{"shortName", "Short name"}, 0, false},
    {{"space", "Size class", Format::Name}, 0, false},
};
// clang-format on

QJsonObject row(const PxProductTypeConfigRegistry *registry, const PxProductType &type)
{
    const PxProductTypeDescription *product = registry->description(type);
    return {{"name", type.productName()},
            {"class", PxCatalogueProducts::className(type)},
            {"size", PxReportValue::size(product->usablePrintSize(PxPageTypeNormalPage, -1))},
            {"binding", PxReportValue::name(product->binding())},
            {"paper", PxReportValue::name(product->paperType())},
            {"pageCounts",
             PxReportValue::pageCounts(product->offeredPageCounts(), product->pageIncrement())},
            {"orientation", keywordOf(product->orientation())},
            {"isOffered", PxCatalogueProducts::isOffered(registry, type)},
            {"code", int(type.type())},
            {"shortName", type.shortProductName()},
            {"space", PxReportValue::name(product->spaceMagnitude())}};
}

template <typename Value>
int compared(const Value &a, const Value &b)
{
    return a < b ? -1 : int(b < a);
}

/** Negative if `a` comes before `b`, which has the same type or is null; 0 if they are equal. */
int compared(const QJsonValue &a, const QJsonValue &b)
{
    if (a.isDouble() && b.isDouble())
        return compared(a.toDouble(), b.toDouble());
    if (a.isBool() && b.isBool())
        return compared(int(a.toBool()), int(b.toBool()));
    if (a.isString() && b.isString())
        return compared(a.toString(), b.toString());
    if (!a.isObject() || !b.isObject())
        return compared(int(a.type()), int(b.type())); // null is the smallest
    for (const char *member :
         {"width", "height", "minimum", "maximum", "increment", "name", "keyword"}) {
        const int order = compared(a[member], b[member]);
        if (order != 0)
            return order;
    }
    return 0;
}

} // namespace

PxProductTable::PxProductTable(const PxProductTypeConfigRegistry *registry,
                               const PxProductTypeList &products)
{
    for (const PxProductType &type : products)
        m_rows.append(row(registry, type));
}

QStringList PxProductTable::keys()
{
    QStringList keys;
    for (const ProductColumn &row : productColumns)
        keys.append(row.column.key);
    return keys;
}

void PxProductTable::sort(const QStringList &keys)
{
    std::stable_sort(m_rows.begin(), m_rows.end(), [&keys](const auto &a, const auto &b) {
        for (const QString &key : keys) {
            const bool isDownwards = key.startsWith('-');
            const QString name = isDownwards ? key.mid(1) : key;
            const int order = compared(a[name], b[name]);
            if (order != 0)
                return isDownwards ? order > 0 : order < 0;
        }
        return false;
    });
}

void PxProductTable::choose(const QStringList &keys)
{
    m_chosen = keys;
    m_chosen.removeDuplicates();
}

void PxProductTable::addTo(PxReport *report) const
{
    QVector<PxReport::Column> columns;
    for (const ProductColumn &row : productColumns) {
        columns.append(row.column);
        columns.last().givesWay = row.givesWay;
        if (!row.isShown)
            columns.last().format = Format::JsonOnly;
    }
    if (!m_chosen.isEmpty())
        columns = chosenColumns();
    QVector<QJsonArray> rows;
    for (const QJsonObject &row : m_rows) {
        QJsonArray values;
        for (const PxReport::Column &column : qAsConst(columns))
            values.append(row[QLatin1String(column.key)]);
        rows.append(values);
    }
    report->addTable("products", "", columns, rows);
}

QVector<QStringList> PxProductTable::texts() const
{
    QVector<QStringList> texts(m_rows.size() + 1);
    for (const PxReport::Column &column : chosenColumns()) {
        texts[0].append(column.key);
        for (int i = 0; i < m_rows.size(); ++i)
            texts[i + 1].append(
                PxReportValue::text(m_rows[i][QLatin1String(column.key)], column.format));
    }
    return texts;
}

/** In their order; all if none is chosen. None gives way. */
QVector<PxReport::Column> PxProductTable::chosenColumns() const
{
    QVector<PxReport::Column> columns;
    for (const QString &key : m_chosen.isEmpty() ? keys() : m_chosen) {
        const auto *found =
            std::find_if(std::begin(productColumns), std::end(productColumns),
                         [&key](const ProductColumn &row) { return key == row.column.key; });
        columns.append(found->column);
    }
    return columns;
}
