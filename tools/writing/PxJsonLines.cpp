#include "writing/PxJsonLines.h"

#include "writing/PxVisibleText.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QLocale>
#include <QVarLengthArray>

#include <cmath>
#include <cstdio>

namespace {

/**
 * Writes a value without blanks. Half of an export is writing: QJsonDocument takes twice as long,
 * and its text would have to be searched once more for characters that nobody sees.
 */
class Line
{
public:
    void append(const QJsonValue &value);
    void append(const QJsonObject &object);
    void append(char character) { m_bytes.append(character); }

    QByteArray bytes() const { return QByteArray(m_bytes.constData(), m_bytes.size()); }

private:
    void append(const char *ascii) { append(ascii, int(qstrlen(ascii))); }
    void append(const QByteArray &bytes) { append(bytes.constData(), bytes.size()); }
    void append(const char *bytes, int count) { m_bytes.append(bytes, count); }
    void appendNumber(double number);
    void appendText(const QString &text);
    /** Returns how many units of the text it takes. */
    int appendCharacter(const QChar *unit, const QChar *end);
    void appendEscape(ushort unit);

    QVarLengthArray<char, 32768> m_bytes; // most lines are shorter
};

void Line::append(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        append(value.toBool() ? "true" : "false");
        break;
    case QJsonValue::Double:
        appendNumber(value.toDouble());
        break;
    case QJsonValue::String:
        appendText(value.toString());
        break;
    case QJsonValue::Array: {
        char separator = '[';
        const QJsonArray array = value.toArray();
        for (const auto &element : array) {
            append(separator);
            append(element);
            separator = ',';
        }
        append(array.isEmpty() ? "[]" : "]");
        break;
    }
    case QJsonValue::Object:
        append(value.toObject());
        break;
    default:
        append("null");
    }
}

void Line::append(const QJsonObject &object)
{
    char separator = '{';
    for (auto member = object.begin(); member != object.end(); ++member) {
        append(separator);
        appendText(member.key());
        append(':');
        append(member.value());
        separator = ',';
    }
    append(object.isEmpty() ? "{}" : "}");
}

void Line::appendNumber(double number)
{
    constexpr double largestExact = 9007199254740992.0; // 2 to the 53rd
    const bool isWhole = std::floor(number) == number && std::fabs(number) < largestExact;
    append(isWhole ? QByteArray::number(qint64(number))
                   : QByteArray::number(number, 'g', QLocale::FloatingPointShortest));
}

void Line::appendText(const QString &text)
{
    append('"');
    const QChar *end = text.constData() + text.size();
    for (const QChar *unit = text.constData(); unit < end;) {
        const ushort code = unit->unicode();
        if (code >= 0x20 && code < 0x7F && code != '"' && code != '\\') {
            append(char(code));
            ++unit;
        } else {
            unit += appendCharacter(unit, end);
        }
    }
    append('"');
}

int Line::appendCharacter(const QChar *unit, const QChar *end)
{
    const bool isPair = unit->isHighSurrogate() && unit + 1 < end && unit[1].isLowSurrogate();
    const int units = isPair ? 2 : 1;
    const uint character = isPair ? QChar::surrogateToUcs4(unit[0], unit[1]) : unit->unicode();
    if (unit->isSurrogate() && !isPair) {
        append(QString(QChar::ReplacementCharacter).toUtf8());
    } else if (character == '"' || character == '\\') {
        append('\\');
        append(char(character));
    } else if (PxVisibleText::isVisible(character)) {
        append(QString(unit, units).toUtf8());
    } else {
        for (int i = 0; i < units; ++i)
            appendEscape(unit[i].unicode());
    }
    return units;
}

void Line::appendEscape(ushort unit)
{
    char escape[sizeof "\\u0000"];
    std::snprintf(escape, sizeof escape, "\\u%04X", unit);
    append(escape);
}

} // namespace

QByteArray PxJsonLines::nextLine() const
{
    const std::optional<QJsonObject> object = m_next();
    if (!object)
        return QByteArray();
    Line line;
    line.append(*object);
    line.append('\n');
    return line.bytes();
}
