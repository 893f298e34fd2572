#include "report/PxReportValue.h"

#include "report/PxNumberRanges.h"

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
    return std::floor(number) == number ? QString::number(number, 'f', 0) : QString::number(number);
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

QString pageNumbersText(const QJsonArray &array)
{
    QList<int> numbers;
    for (const auto &number : array)
        numbers.append(number.toInt());
    return PxNumberRanges::text(numbers, 0, numbers.size(), 2); // a larger step would be chance
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
    QJsonObject json; // an export has so many that the keys are better not converted
    json.insert(QLatin1String("width"), qRound64(size.width()));
    json.insert(QLatin1String("height"), qRound64(size.height()));
    return json;
}

QJsonValue PxReportValue::rect(const QRect &rect)
{
    QJsonObject json;
    json.insert(QLatin1String("x"), rect.x());
    json.insert(QLatin1String("y"), rect.y());
    json.insert(QLatin1String("width"), rect.width());
    json.insert(QLatin1String("height"), rect.height());
    return json;
}

QJsonValue PxReportValue::margins(const PxMargins &margins)
{
    QJsonObject json;
    json.insert(QLatin1String("top"), margins.top());
    json.insert(QLatin1String("bottom"), margins.bottom());
    json.insert(QLatin1String("left"), margins.left());
    json.insert(QLatin1String("right"), margins.right());
    return json;
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
