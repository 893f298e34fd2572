#include "report/PxReportValue.h"

#include <geometry/PxMargins.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QRect>
#include <QStringList>

#include <cmath>

namespace {

/** A ratio with six digits, but of a whole number all of them. */
QString numberText(double number)
{
    return std::floor(number) == number ? QString::number(number, 'f', 0)
                                        : QString::number(number);
}

QString lengthText(const QJsonValue &tenths)
{
    const auto value = qint64(tenths.toDouble()); // sums of lengths may exceed an int
    return QString::number(double(value) / 10.0, 'f', value % 10 == 0 ? 0 : 1);
}

QString sizeText(const QJsonValue &size)
{
    return lengthText(size["width"]) + "×" + lengthText(size["height"]);
}

QString marginsText(const QJsonValue &margins)
{
    QStringList sides;
    for (const char *side : {"top", "bottom", "left", "right"})
        sides.append(lengthText(margins[side]));
    const bool areEqual = sides.count(sides.constFirst()) == sides.size();
    return areEqual ? sides.constFirst() : sides.join('/');
}

QString pageCountsText(const QJsonValue &counts)
{
    const int minimum = counts["minimum"].toInt();
    const int maximum = counts["maximum"].toInt();
    if (minimum == maximum)
        return QString::number(minimum);
    if (counts["increment"].isNull())
        return QString("%1, %2").arg(minimum).arg(maximum);
    return QString("%1-%2/%3").arg(minimum).arg(maximum).arg(counts["increment"].toInt());
}

/**
 * The index behind the run that begins at `first`, in steps of 1 or 2. Negative numbers begin no
 * run, because "-3--1" is hard to read.
 */
int endOfRun(const QJsonArray &numbers, int first)
{
    int end = first + 1;
    const auto stepTo = [&numbers](int i) {
        return qint64(numbers[i].toInt()) - numbers[i - 1].toInt();
    };
    if (end == numbers.size() || numbers[first].toInt() < 0 ||
        (stepTo(end) != 1 && stepTo(end) != 2))
        return end;
    const qint64 step = stepTo(end);
    while (end < numbers.size() && stepTo(end) == step)
        ++end;
    return end;
}

QString pageNumbersText(const QJsonArray &numbers)
{
    QStringList parts;
    for (int first = 0; first < numbers.size();) {
        const int end = endOfRun(numbers, first);
        const int number = numbers[first].toInt();
        const int last = numbers[end - 1].toInt();
        if (end - first < 3) {
            parts.append(QString::number(number));
            ++first;
            continue;
        }
        const QString run = QString("%1-%2").arg(QString::number(number), QString::number(last));
        parts.append(last - number == end - first - 1 ? run : run + "/2");
        first = end;
    }
    return parts.join(", ");
}

QString plainText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? "yes" : "no";
    case QJsonValue::Double:
        return numberText(value.toDouble());
    case QJsonValue::Array: {
        QStringList parts;
        for (const auto &part : value.toArray())
            parts.append(plainText(part));
        return parts.join(", ");
    }
    default:
        return value.toString();
    }
}

} // namespace

QJsonValue PxReportValue::size(const QSizeF &size)
{
    if (!size.isValid())
        return QJsonValue();
    return QJsonObject{{"width", qRound64(size.width())}, {"height", qRound64(size.height())}};
}

QJsonValue PxReportValue::rect(const QRect &rect)
{
    return QJsonObject{
        {"x", rect.x()}, {"y", rect.y()}, {"width", rect.width()}, {"height", rect.height()}};
}

QJsonValue PxReportValue::margins(const PxMargins &margins)
{
    return QJsonObject{{"top", margins.top()},
                       {"bottom", margins.bottom()},
                       {"left", margins.left()},
                       {"right", margins.right()}};
}

QJsonValue PxReportValue::name(const QString &keyword, const QString &displayName)
{
    if (keyword.isEmpty())
        return QJsonValue();
    return QJsonObject{{"keyword", keyword}, {"name", displayName}};
}

QJsonValue PxReportValue::pageCounts(const QList<int> &offered, int increment)
{
    if (offered.isEmpty())
        return QJsonValue();
    const QJsonValue step = offered.size() == 1   ? QJsonValue(0)
                            : offered.size() == 2 ? QJsonValue()
                                                  : QJsonValue(increment);
    return QJsonObject{
        {"minimum", offered.constFirst()}, {"maximum", offered.constLast()}, {"increment", step}};
}

QJsonValue PxReportValue::numbers(const QList<int> &numbers)
{
    QJsonArray array;
    for (int number : numbers)
        array.append(number);
    return array;
}

QString PxReportValue::text(const QJsonValue &value, PxReportFormat format)
{
    if (value.isNull())
        return QString();
    switch (format) {
    case PxReportFormat::Name:
        return value["name"].toString().isEmpty() ? value["keyword"].toString()
                                                  : value["name"].toString();
    case PxReportFormat::Length:
        return lengthText(value);
    case PxReportFormat::Size:
        return sizeText(value);
    case PxReportFormat::Pixels:
        return QString("%1×%2").arg(value["width"].toInt()).arg(value["height"].toInt());
    case PxReportFormat::Margins:
        return marginsText(value);
    case PxReportFormat::Rect:
        return QString("%1 at %2, %3")
            .arg(sizeText(value), lengthText(value["x"]), lengthText(value["y"]));
    case PxReportFormat::Area:
        return QString::number(value.toInt() / 10000.0, 'f', 0);
    case PxReportFormat::PageCounts:
        return pageCountsText(value);
    case PxReportFormat::PageNumbers:
        return pageNumbersText(value.toArray());
    case PxReportFormat::CountOrAll:
        return value.toArray().isEmpty() ? "all" : QString::number(value.toArray().size());
    default:
        return plainText(value);
    }
}

QString PxReportValue::unit(PxReportFormat format)
{
    switch (format) {
    case PxReportFormat::Length:
    case PxReportFormat::Size:
    case PxReportFormat::Margins:
    case PxReportFormat::Rect:
        return " mm";
    case PxReportFormat::Area:
        return " cm²";
    case PxReportFormat::Points:
        return " pt";
    case PxReportFormat::Pixels:
        return " px";
    default:
        return QString();
    }
}
