#include "diff/PxComparedProduct.h"

#include "report/PxNumberRanges.h"

#include <description/PxProductTypeDescription.h>

#include <QHash>
#include <QJsonDocument>

#include <algorithm>

namespace {

constexpr int most = PxProductTypeDescription::maximumListedPages;

bool isSinglePageFrom(const QJsonValue &row, int pages)
{
    return row["page"].isDouble() && !row["isCountedFromBack"].toBool() &&
           row["page"].toInt() >= pages;
}

} // namespace

QList<int> PxComparedProduct::numbersOf(const QJsonValue &text)
{
    return PxNumberRanges::numbers(text.toString(), most).value_or(QList<int>());
}

PxComparedProduct::PxComparedProduct(const QByteArray &line)
    : m_product(QJsonDocument::fromJson(line).object())
    , m_pageCounts(numbersOf(value("/pages/offered")))
    , m_rows(m_pageCounts.size(), -1)
{
    const QJsonValue table = value("/byPageCount");
    readRows(table["pageCounts"].toArray());
    const QJsonObject columns = table["values"].toObject();
    for (auto column = columns.begin(); column != columns.end(); ++column)
        m_columns.insert(column.key(), column->toArray());
}

/** Every page count is in one row. */
void PxComparedProduct::readRows(const QJsonArray &pageCounts)
{
    int read = 0;
    for (int row = 0; row < pageCounts.size() && read < m_pageCounts.size(); ++row) {
        for (const int pageCount : numbersOf(pageCounts[row])) {
            const auto found =
                std::lower_bound(m_pageCounts.begin(), m_pageCounts.end(), pageCount);
            if (found != m_pageCounts.end() && *found == pageCount)
                m_rows[int(found - m_pageCounts.begin())] = row;
            ++read;
        }
    }
}

int PxComparedProduct::printedPages() const
{
    const qint64 pageCount = m_pageCounts.isEmpty() ? 1 : m_pageCounts.constLast();
    double pages = 0;
    const QJsonArray list = value("/pages/list").toArray();
    for (const QJsonValue run : list)
        pages += run["fixed"].toDouble() + run["perPageCount"].toDouble() * double(pageCount);
    return int(qBound(0.0, pages, double(most)));
}

void PxComparedProduct::limitPages(int pages)
{
    for (const char *section : {"barcodes", "contentRedirects", "rotationRedirects"}) {
        QJsonArray rows = table(section);
        for (int i = 0; i < rows.size(); ++i) {
            if (isSinglePageFrom(rows[i], pages))
                rows[i] = QJsonValue();
        }
        m_product[QLatin1String(section)] = rows;
    }
    const QString withContent = value("/pages/pagesWithContent").toString();
    QList<int> numbers = numbersOf(withContent);
    numbers.erase(std::lower_bound(numbers.begin(), numbers.end(), pages), numbers.end());
    const bool isAll = withContent == "all" || numbers.size() == pages;
    QJsonObject pagesOfProduct = m_product["pages"].toObject();
    pagesOfProduct["pagesWithContent"] = isAll ? "all" : PxNumberRanges::text(numbers);
    m_product["pages"] = pagesOfProduct;
}

QSet<QString> PxComparedProduct::kindsOfPages() const
{
    QSet<QString> kinds;
    for (const QJsonValue kind : table("pageKinds"))
        kinds.insert(kind["pageType"].toString() + ' ' + kind["alignment"].toString());
    return kinds;
}

void PxComparedProduct::limitSurroundings(int pages, const QSet<QString> &kinds)
{
    QJsonArray surroundings = table("surroundings");
    for (int i = 0; i < surroundings.size(); ++i) {
        QJsonObject surrounding = surroundings[i].toObject();
        QMap<QString, QJsonValue> places; // in an order that does not depend on other pages
        for (const QJsonValue place : surrounding["places"].toArray()) {
            const QString type = place["pageType"].toString();
            const QString kind = type + ' ' + place["alignment"].toString();
            if ((type.isEmpty() || kinds.contains(kind)) && !isSinglePageFrom(place, pages))
                places.insert(QString("%1 %2").arg(place["page"].toInt(-1)).arg(kind), place);
        }
        QJsonArray sorted;
        for (const QJsonValue &place : qAsConst(places))
            sorted.append(place);
        surrounding["places"] = sorted;
        surroundings[i] = places.isEmpty() ? QJsonValue() : surrounding;
    }
    m_product["surroundings"] = surroundings;
}

void PxComparedProduct::limitThemes(const QSet<QString> &ids)
{
    QJsonArray templates = table("themeTemplates");
    for (int i = 0; i < templates.size(); ++i) {
        if (!ids.contains(templates[i].toObject()["theme"].toString()))
            templates[i] = QJsonValue();
    }
    if (!templates.isEmpty())
        m_product["themeTemplates"] = templates;
}

QJsonValue PxComparedProduct::value(const QString &pointer) const
{
    QJsonValue value = m_product;
    const QVector<QStringRef> steps = pointer.splitRef('/').mid(1);
    for (const QStringRef &step : steps)
        value = value.isArray() ? value[step.toInt()] : value[step.toString()];
    return value;
}

PxValueByPageCount PxComparedProduct::valueByPageCount(const QString &pointer) const
{
    PxValueByPageCount found{value(pointer), {}};
    for (auto column = m_columns.lowerBound(pointer);
         column != m_columns.end() && column.key().startsWith(pointer); ++column) {
        const QString member = column.key().mid(pointer.size());
        if (member.isEmpty() || member.startsWith('/'))
            found.columns.append({member.mid(1), *column});
    }
    return found;
}

QJsonValue PxValueByPageCount::at(int row) const
{
    QJsonValue value = fixed;
    for (const auto &[member, values] : columns) {
        if (member.isEmpty())
            return values.at(row);
        QJsonObject object = value.toObject();
        object.insert(member, values.at(row));
        value = object;
    }
    return value;
}
