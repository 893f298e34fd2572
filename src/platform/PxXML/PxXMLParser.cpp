#include "PxXMLParser.h"

#include <QPoint>
#include <QRegularExpression>
#include <QStringView>

#include <algorithm>
#include <limits>
#include <optional>

namespace {

std::optional<int> toInt(const QString &text)
{
    // This ignores white space and allocates nothing for a number of reasonable length.
    bool isNumber = false;
    const int number = text.toInt(&isNumber, 10);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

/** The local time for a date and a time of day; invalid if one of them is. */
QDateTime toLocalTime(const QDate &date, const QTime &time)
{
    if (!date.isValid() || !time.isValid())
        return QDateTime();
    const QDateTime local(date, time); // converted once: each conversion takes microseconds
    if (local.isValid() && local.date() == date && local.time() == time)
        return local;
    // The clocks skip this time: convert it with the offset of the day before.
    const QDateTime utc(date, time, Qt::UTC);
    return utc.addSecs(-utc.addDays(-1).toLocalTime().offsetFromUtc()).toLocalTime();
}

QDateTime fromCompactForm(const QString &text)
{
    const auto number = [&text](int begin, int length) {
        return text.midRef(begin, length).toInt();
    };
    return toLocalTime(QDate(number(0, 4), number(4, 2), number(6, 2)),
                       QTime(number(8, 2), number(10, 2)));
}

QDateTime fromExtendedForm(const QString &text)
{
    // The pattern is needed because Qt accepts many other texts, too.
    static const auto &ourForm = *new QRegularExpression(
        QStringLiteral("\\A\\d{4}-\\d\\d-\\d\\d"
                       "(T\\d\\d:\\d\\d(:\\d\\d([.,]\\d+)?)?(Z|[+-]\\d\\d(:\\d\\d)?)?)?\\z"));
    const QRegularExpressionMatch form = ourForm.match(text);
    if (!form.hasMatch())
        return QDateTime();
    constexpr int time = 1;
    constexpr int zone = 4;
    if (form.capturedLength(zone) > 0)
        return QDateTime::fromString(text, Qt::ISODateWithMs).toLocalTime();
    const QString whole = form.capturedLength(time) > 0 ? text : text + QLatin1String("T00:00");
    const QDateTime utc = QDateTime::fromString(whole + QLatin1Char('Z'), Qt::ISODateWithMs);
    return toLocalTime(utc.date(), utc.time());
}

QDateTime toLocalTime(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) // as of each theme without an expiry date; saves the pattern
        return QDateTime();
    const bool isCompact =
        trimmed.size() == 12 && std::all_of(trimmed.begin(), trimmed.end(), [](QChar c) {
            return c >= QLatin1Char('0') && c <= QLatin1Char('9');
        });
    return isCompact ? fromCompactForm(trimmed) : fromExtendedForm(trimmed);
}

/**
 * Whether QRect can represent them: it stores the last coordinate and computes the size from both.
 */
bool areEdges(qint64 first, qint64 last)
{
    constexpr qint64 smallest = std::numeric_limits<int>::min();
    constexpr qint64 largest = std::numeric_limits<int>::max();
    return last >= smallest && last <= largest && last - first >= smallest;
}

} // namespace

QString PxXMLParser::attribute(const QDomElement &element, const QString &name,
                               const QString &defaultValue, bool acceptEmpty)
{
    const QString text = element.attribute(name, defaultValue);
    return text.isEmpty() && !acceptEmpty ? defaultValue : text;
}

int PxXMLParser::intAttribute(const QDomElement &element, const QString &name, int defaultValue)
{
    return toInt(element.attribute(name)).value_or(defaultValue);
}

bool PxXMLParser::boolAttribute(const QDomElement &element, const QString &name, bool defaultValue)
{
    constexpr struct
    {
        const char *text;
        bool value;
    } words[] = {
        {"true", true},   {"1", true},  {"yes", true}, {"on", true},
        {"false", false}, {"0", false}, {"no", false}, {"off", false},
    };
    const QString attribute = element.attribute(name);
    const QStringView text = QStringView(attribute).trimmed();
    for (const auto &word : words) {
        if (text.compare(QLatin1String(word.text), Qt::CaseInsensitive) == 0)
            return word.value;
    }
    return defaultValue;
}

QDateTime PxXMLParser::dateTimeAttribute(const QDomElement &element, const QString &name,
                                         const QString &defaultText)
{
    const QDateTime time = toLocalTime(element.attribute(name));
    return time.isValid() ? time : toLocalTime(defaultText);
}

QRect PxXMLParser::readRect(const QDomElement &element)
{
    return readRect(element.attributes());
}

QRect PxXMLParser::readRect(const QDomNamedNodeMap &attributes)
{
    const auto number = [&attributes](const QString &name) {
        return toInt(attributes.namedItem(name).nodeValue());
    };
    const std::optional<int> width = number(QStringLiteral("width"));
    const std::optional<int> height = number(QStringLiteral("height"));
    if (!width || !height)
        return {};
    const int left = number(QStringLiteral("x")).value_or(0);
    const int top = number(QStringLiteral("y")).value_or(0);
    const qint64 right = qint64(left) + *width - 1;
    const qint64 bottom = qint64(top) + *height - 1;
    if (!areEdges(left, right) || !areEdges(top, bottom))
        return {};
    return {QPoint(left, top), QPoint(int(right), int(bottom))};
}

QSize PxXMLParser::readSize(const QDomElement &element)
{
    return {intAttribute(element, QStringLiteral("width"), -1),
            intAttribute(element, QStringLiteral("height"), -1)};
}
