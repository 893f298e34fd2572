#include "export/PxPageCountTable.h"

#include "report/PxNumberRanges.h"
#include "report/PxReport.h"
#include "writing/PxJsonLine.h"

#include <QJsonObject>

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

using Sides = std::tuple<int, int, int, int>;

Sides sidesOf(const PxMargins &margins)
{
    return {margins.top(), margins.bottom(), margins.left(), margins.right()};
}

QJsonValue jsonOf(int number)
{
    return number;
}

QJsonValue jsonOf(const QSize &size)
{
    return PxReportValue::size(size);
}

QJsonValue jsonOf(const Sides &sides)
{
    return PxReportValue::margins(std::make_from_tuple<PxMargins>(sides));
}

} // namespace

PxPageCountTable::PxPageCountTable(const PxShownProduct &product, PxReport *report)
    : m_shown(product)
    , m_replaced(*product.product)
{
    findRows();
    if (m_rows.size() < 2)
        return;
    moveSpine(report);
    movePageKinds(report);
    moveLegacy(report);
}

/** All that changes follows from the spines, and a product of a single page has no inner edge. */
void PxPageCountTable::findRows()
{
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

/** The answer for each row. */
template <typename Ask>
auto PxPageCountTable::answers(Ask ask) const
{
    QVector<decltype(ask(0))> answers;
    answers.reserve(m_rows.size());
    for (const int pageCount : m_rows)
        answers.append(ask(pageCount));
    return answers;
}

/** What remains of a value: itself if it is the same in all rows, else null. */
template <typename Answer>
QJsonValue PxPageCountTable::moved(const QByteArray &pointer, const QVector<Answer> &answers)
{
    if (answers.count(answers.constFirst()) == answers.size())
        return jsonOf(answers.constFirst());
    QVector<QJsonValue> values;
    values.reserve(answers.size());
    for (const Answer &answer : answers)
        values.append(jsonOf(answer));
    m_columns.append({pointer, values});
    return QJsonValue();
}

/** Mostly only the width changes. A size that some rows do not have is moved as a whole. */
QJsonValue PxPageCountTable::movedSize(const QByteArray &pointer, const QVector<QSize> &sizes)
{
    const bool areValid =
        std::all_of(sizes.begin(), sizes.end(), [](const QSize &size) { return size.isValid(); });
    if (!areValid)
        return moved(pointer, sizes);
    QVector<int> widths;
    QVector<int> heights;
    for (const QSize &size : sizes) {
        widths.append(size.width());
        heights.append(size.height());
    }
    return QJsonObject{{"width", moved(pointer + "/width", widths)},
                       {"height", moved(pointer + "/height", heights)}};
}

void PxPageCountTable::moveSpine(PxReport *report)
{
    const auto widths =
        answers([this](int pageCount) { return m_shown.product->spineWidth(pageCount); });
    const auto heights =
        answers([this](int pageCount) { return m_shown.product->spineMaxFontHeight(pageCount); });
    report->setValue("spine", "width", moved("/spine/width", widths));
    report->setValue("spine", "maxFontHeight", moved("/spine/maxFontHeight", heights));
}

void PxPageCountTable::movePageKinds(PxReport *report)
{
    for (int i = 0; i < m_shown.kinds.size(); ++i) {
        const PxPageContext &kind = m_shown.kinds[i];
        if (m_rows.constFirst() > 1 && !kind.pageType().matches(PxPageTypeSpine))
            continue;
        const auto ask = [&](auto part) {
            return answers([&](int pageCount) {
                return part(m_shown.product->sizeSpec(PxPageSizeKey(kind, pageCount)));
            });
        };
        const auto usable = ask([](const PxPageSizeSpec &size) { return size.usableSize(); });
        const auto bleed =
            ask([](const PxPageSizeSpec &size) { return sidesOf(size.bleedMargins()); });
        const auto total = ask([](const PxPageSizeSpec &size) { return size.totalSize(); });
        const QByteArray pointer = "/pageKinds/" + QByteArray::number(i);
        report->setValue("pageKinds", "usableSize", movedSize(pointer + "/usableSize", usable), i);
        report->setValue("pageKinds", "bleed", moved(pointer + "/bleed", bleed), i);
        report->setValue("pageKinds", "totalSize", movedSize(pointer + "/totalSize", total), i);
    }
}

void PxPageCountTable::moveLegacy(PxReport *report)
{
    const auto spines = answers([this](int pageCount) { return m_replaced.spine(pageCount); });
    const auto covers = answers([this](int pageCount) { return m_replaced.cover(pageCount); });
    report->setValue("legacy", "replacedSpine", movedSize("/legacy/replacedSpine", spines));
    report->setValue("legacy", "replacedCover", movedSize("/legacy/replacedCover", covers));
}

void PxPageCountTable::addTo(PxJsonLine *line) const
{
    if (m_columns.isEmpty()) {
        line->add("byPageCount", QJsonValue());
        return;
    }
    const auto addArray = [line](const char *key, const auto &values) {
        line->beginArray(key);
        for (const auto &value : values)
            line->add(value);
        line->endArray();
    };
    line->beginObject("byPageCount");
    addArray("pageCounts", m_pageCounts);
    line->beginObject("values");
    for (const Column &column : m_columns)
        addArray(column.pointer.constData(), column.values);
    line->endObject();
    line->endObject();
}
