#include "report/PxPageCountTable.h"

#include "report/PxNumberRanges.h"
#include "report/PxReportValue.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

QJsonValue jsonOf(int number)
{
    return number;
}

QJsonValue jsonOf(const QSize &size)
{
    return PxReportValue::size(size);
}

QJsonValue jsonOf(const std::tuple<int, int, int, int> &margins)
{
    return PxReportValue::margins(std::make_from_tuple<PxMargins>(margins));
}

std::tuple<int, int, int, int> sidesOf(const PxMargins &margins)
{
    return {margins.top(), margins.bottom(), margins.left(), margins.right()};
}

} // namespace

PxPageCountTable::PxPageCountTable(const PxShownProduct &product)
    : m_shown(product)
    , m_replaced(*product.product)
{
    // All that changes follows from the spines, and a single page has no inner edge.
    const auto answers = [this](int pageCount) {
        return std::make_tuple(m_shown.product->spineWidth(pageCount),
                               m_shown.product->spineMaxFontHeight(pageCount),
                               m_replaced.spineWidth(pageCount), pageCount > 1);
    };
    const QList<int> &pageCounts = m_shown.offeredPageCounts;
    constexpr int anyStep = std::numeric_limits<int>::max();
    for (int begin = 0; begin < pageCounts.size();) {
        const auto first = answers(pageCounts[begin]);
        int end = begin + 1;
        while (end < pageCounts.size() && answers(pageCounts[end]) == first)
            ++end;
        m_rows.append(pageCounts[begin]);
        m_pageCounts.append(PxNumberRanges::text(pageCounts, begin, end, anyStep));
        begin = end;
    }
}

QJsonValue PxPageCountTable::moveFrom(QJsonObject *product)
{
    if (m_rows.size() < 2)
        return QJsonValue();
    QJsonObject spine = product->value(QLatin1String("spine")).toObject();
    QJsonArray kinds = product->value(QLatin1String("pageKinds")).toArray();
    QJsonObject legacy = product->value(QLatin1String("legacy")).toObject();
    moveFromSpine(&spine);
    moveFromPageKinds(&kinds);
    moveFromLegacy(&legacy);
    if (m_columns.isEmpty())
        return QJsonValue();
    product->insert("spine", spine);
    product->insert("pageKinds", kinds);
    product->insert("legacy", legacy);
    return QJsonObject{{"pageCounts", m_pageCounts}, {"values", m_columns}};
}

void PxPageCountTable::moveFromSpine(QJsonObject *spine)
{
    move("/spine/width", spine, "width",
         [this](int pageCount) { return m_shown.product->spineWidth(pageCount); });
    move("/spine/maxFontHeight", spine, "maxFontHeight",
         [this](int pageCount) { return m_shown.product->spineMaxFontHeight(pageCount); });
}

void PxPageCountTable::moveFromPageKinds(QJsonArray *kinds)
{
    for (int i = 0; i < kinds->size(); ++i) {
        const PxPageContext &kind = m_shown.kinds[i];
        if (m_rows.constFirst() > 1 && !kind.pageType().matches(PxPageTypeSpine))
            continue;
        const auto size = [&](int pageCount) {
            return m_shown.product->sizeSpec(PxPageSizeKey(kind, pageCount));
        };
        const QString pointer = QString("/pageKinds/%1/").arg(i);
        QJsonObject object = kinds->at(i).toObject();
        moveSize(pointer + "usableSize", &object, "usableSize",
                 [&](int pageCount) { return size(pageCount).usableSize(); });
        move(pointer + "bleed", &object, "bleed",
             [&](int pageCount) { return sidesOf(size(pageCount).bleedMargins()); });
        moveSize(pointer + "totalSize", &object, "totalSize",
                 [&](int pageCount) { return size(pageCount).totalSize(); });
        kinds->replace(i, object);
    }
}

void PxPageCountTable::moveFromLegacy(QJsonObject *legacy)
{
    moveSize("/legacy/replacedSpine", legacy, "replacedSpine",
             [this](int pageCount) { return m_replaced.spine(pageCount); });
    moveSize("/legacy/replacedCover", legacy, "replacedCover",
             [this](int pageCount) { return m_replaced.cover(pageCount); });
}

/** Mostly only the width changes. A size that is missing in a row is moved as a whole. */
template <typename Ask>
void PxPageCountTable::moveSize(const QString &pointer, QJsonObject *object, const char *key,
                                Ask ask)
{
    const bool areValid = std::all_of(m_rows.begin(), m_rows.end(),
                                      [&](int pageCount) { return ask(pageCount).isValid(); });
    if (!areValid) {
        move(pointer, object, key, ask);
        return;
    }
    QJsonObject size = object->value(QLatin1String(key)).toObject();
    move(pointer + "/width", &size, "width", [&](int pageCount) { return ask(pageCount).width(); });
    move(pointer + "/height", &size, "height",
         [&](int pageCount) { return ask(pageCount).height(); });
    object->insert(QLatin1String(key), size);
}

/** Moves a value of the object, unless it is the same in all rows. */
template <typename Ask>
void PxPageCountTable::move(const QString &pointer, QJsonObject *object, const char *key, Ask ask)
{
    const auto first = ask(m_rows.constFirst());
    const bool isChanging = std::any_of(m_rows.begin(), m_rows.end(),
                                        [&](int pageCount) { return ask(pageCount) != first; });
    if (!isChanging)
        return;
    QJsonArray values;
    for (const int pageCount : qAsConst(m_rows))
        values.append(jsonOf(ask(pageCount)));
    m_columns.insert(pointer, values);
    object->remove(QLatin1String(key));
}
