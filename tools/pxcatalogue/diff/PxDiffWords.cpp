#include "diff/PxDiffWords.h"

#include "diff/PxComparedProduct.h"
#include "diff/PxDiff.h"
#include "report/PxNumberRanges.h"
#include "writing/PxTerminal.h"

#include <QJsonArray>
#include <QSet>

namespace {

using Format = PxReportFormat;

constexpr int longestText = 1000;

/** "0.2 mm wider"; empty for no difference. */
QString difference(const QJsonValue &before, const QJsonValue &after, PxDiffKey::Words words)
{
    const double tenths = after.toDouble() - before.toDouble();
    if (!before.isDouble() || !after.isDouble() || tenths == 0.0)
        return QString();
    return QString("%1%2 %3").arg(PxReportValue::text(qAbs(tenths), Format::Length),
                                  PxReportValue::unit(Format::Length),
                                  PxDiffKey::word(words, tenths > 0));
}

QString differenceOfSize(const QJsonValue &before, const QJsonValue &after)
{
    QStringList parts{difference(before["width"], after["width"], PxDiffKey::Words::Width),
                      difference(before["height"], after["height"], PxDiffKey::Words::Height)};
    parts.removeAll(QString());
    return parts.join(", ");
}

/** Only if all sides changed alike. */
QString differenceOfMargins(const PxChange &change)
{
    QStringList parts;
    for (const char *side : {"top", "bottom", "left", "right"})
        parts.append(difference(change.before[side], change.after[side], change.key->words));
    parts.removeDuplicates();
    return parts.size() == 1 ? parts.constFirst() : QString();
}

QStringList partsOf(const QJsonValue &list)
{
    QStringList parts;
    for (const auto &part : list.toArray())
        parts.append(PxReportValue::text(part, Format::Plain));
    return parts;
}

QStringList without(QStringList parts, const QStringList &others)
{
    const QSet<QString> known(others.begin(), others.end());
    parts.erase(std::remove_if(parts.begin(), parts.end(),
                               [&known](const QString &part) { return known.contains(part); }),
                parts.end());
    return parts;
}

QString pageCountsWithout(const QJsonValue &pageCounts, const QJsonValue &others)
{
    const QList<int> known = PxComparedProduct::numbersOf(others);
    QList<int> left;
    for (const int number : PxComparedProduct::numbersOf(pageCounts)) {
        if (!std::binary_search(known.begin(), known.end(), number))
            left.append(number);
    }
    return PxNumberRanges::text(left);
}

/** What a list gained and lost. */
QString differenceOfLists(const QString &gained, const QString &lost)
{
    QStringList parts;
    if (!gained.isEmpty())
        parts.append("now " + gained);
    if (!lost.isEmpty())
        parts.append("no longer " + lost);
    return parts.join(", ");
}

QString textOf(const QJsonValue &value, const PxChange &change)
{
    const QString text = change.key->format == Format::JsonOnly
                             ? PxDiffWords::ofParts(value)
                             : PxReportValue::text(value, change.key->format);
    return text.isEmpty() ? "none" : PxTerminal::shortened(text, longestText);
}

QString textWithUnit(const QJsonValue &value, const PxChange &change)
{
    return textOf(value, change) +
           (value.isNull() ? QString() : PxReportValue::unit(change.key->format));
}

QString rangeText(const QJsonValue &first, const QJsonValue &last, const PxChange &change)
{
    const QString from = textOf(first, change);
    const QString to = textOf(last, change);
    return from == to ? from : from + " to " + to;
}

/** How many pages an entry of the page list is, such as "all and 2"; empty for a single one. */
QString numberOfPages(const QJsonValue &entry)
{
    const int fixed = entry["fixed"].toInt();
    const int perPageCount = entry["perPageCount"].toInt();
    QString text;
    if (perPageCount > 0)
        text = perPageCount > 1 ? QString("%1 times all").arg(perPageCount) : QString("all");
    if (perPageCount > 0 && fixed > 0)
        text += " and ";
    return fixed > 1 || (perPageCount > 0 && fixed > 0) ? text + QString::number(fixed) : text;
}

/** What a row says beside what it is called by: "layout Collage, background Holz". */
QString valuesOfRow(const PxDiffKey &rowKey, const QJsonValue &row)
{
    const QString rows = QString(rowKey.pointer).chopped(1);
    QStringList naming;
    for (const PxDiffTable &table : PxDiffKeys::tables()) {
        if (rows == QString("/%1/").arg(table.section))
            naming = table.identityColumns().constFirst();
    }
    QStringList texts;
    for (const PxDiffKey &key : PxDiffKeys::ofProducts()) {
        const QString pointer = key.pointer;
        const QString member = pointer.section('/', -1);
        const QJsonValue value = row[member];
        if (!pointer.startsWith(rows) || naming.contains(member) || value == false)
            continue;
        const QString text = PxReportValue::text(value, key.format);
        if (!text.isEmpty())
            texts.append(QString("%1 %2%3").arg(key.label, text, PxReportValue::unit(key.format)));
    }
    return PxTerminal::shortened(texts.join(", "), longestText);
}

} // namespace

QString PxDiffWords::ofParts(const QJsonValue &value)
{
    QStringList words;
    switch (value.type()) {
    case QJsonValue::Double:
        return QString::number(value.toInt());
    case QJsonValue::Bool:
        return value.toBool() ? "from the back" : "";
    case QJsonValue::Array:
        for (const auto &part : value.toArray())
            words.append(ofParts(part));
        return words.join(", ");
    case QJsonValue::Object:
        words.append(numberOfPages(value));
        for (const char *member :
             {"pageType", "alignment", "page", "first", "second", "even", "odd"})
            words.append(ofParts(value[QLatin1String(member)]));
        words.removeAll(QString());
        return words.join(' ');
    default:
        return value.toString();
    }
}

QString PxDiffWords::ofDifference(const PxChange &change)
{
    switch (change.key->words) {
    case PxDiffKey::Words::None:
        return QString();
    case PxDiffKey::Words::Size:
        return differenceOfSize(change.before, change.after);
    default:
        return change.key->format == Format::Margins
                   ? differenceOfMargins(change)
                   : difference(change.before, change.after, change.key->words);
    }
}

QString PxDiffWords::of(const PxChange &first, const PxChange &last)
{
    if (QString(first.key->pointer).endsWith('*')) {
        const bool isNew = first.before.isNull();
        const QString values = valuesOfRow(*first.key, isNew ? first.after : first.before);
        return (isNew ? "new" : "no longer there") + (values.isEmpty() ? "" : ", " + values);
    }
    QString difference = ofDifference(first);
    if (first.pointer == "/pages/offered") {
        difference = differenceOfLists(pageCountsWithout(first.after, first.before),
                                       pageCountsWithout(first.before, first.after));
    } else if (!first.before.toArray().isEmpty() && !first.after.toArray().isEmpty() &&
               first.key->format != Format::JsonOnly) {
        const QStringList before = partsOf(first.before);
        const QStringList after = partsOf(first.after);
        difference =
            differenceOfLists(without(after, before).join(", "), without(before, after).join(", "));
        if (!difference.isEmpty())
            return PxTerminal::shortened(difference, longestText);
    }
    const QString values =
        first.before.isNull() || first.after.isNull()
            ? textWithUnit(first.before, first) + " → " + textWithUnit(first.after, first)
            : rangeText(first.before, last.before, first) + " → " +
                  rangeText(first.after, last.after, first) +
                  PxReportValue::unit(first.key->format);
    return difference.isEmpty() ? values
                                : PxTerminal::shortened(difference, longestText) + ", " + values;
}
