#include "PxXMLParser.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace {

std::optional<int> toInt(const QString &text)
{
    // Ignores the white space by itself and allocates nothing for a number of sane length.
    bool isNumber = false;
    const int number = text.toInt(&isNumber, 10);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

QDateTime toLocalTime(const QString &text)
{
    const QString trimmed = text.trimmed();
    const bool isCompact =
        trimmed.size() == 12 && std::all_of(trimmed.begin(), trimmed.end(), [](QChar c) {
            return c >= QLatin1Char('0') && c <= QLatin1Char('9');
        });
    if (!isCompact)
        return QDateTime::fromString(trimmed, Qt::ISODate).toLocalTime();
    const auto number = [&trimmed](int begin, int length) {
        return trimmed.midRef(begin, length).toInt();
    };
    const QDate date(number(0, 4), number(4, 2), number(6, 2));
    const QTime time(number(8, 2), number(10, 2));
    return time.isValid() ? QDateTime(date, time) : QDateTime(); // else it would be midnight
}

/** Whether QRect can compute with them: it stores the last edge inside and measures from the first.
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
