#include "writing/PxJsonLine.h"

#include "writing/PxVisibleText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QLocale>

#include <cmath>

void PxJsonLine::add(const char *key, const QJsonValue &value)
{
    appendKey(key);
    appendValue(value);
}

void PxJsonLine::add(const QJsonValue &element)
{
    separate();
    appendValue(element);
}

void PxJsonLine::beginObject(const char *key)
{
    appendKey(key);
    append('{');
}

void PxJsonLine::beginArray(const char *key)
{
    appendKey(key);
    append('[');
}

void PxJsonLine::beginObject()
{
    separate();
    append('{');
}

QByteArray PxJsonLine::toUtf8() const
{
    return '{' + QByteArray(m_bytes.data(), int(m_bytes.size())) + "}\n";
}

/** A comma, unless nothing precedes in the object or array. */
void PxJsonLine::separate()
{
    if (!m_bytes.empty() && m_bytes.back() != '{' && m_bytes.back() != '[')
        append(',');
}

void PxJsonLine::appendKey(const char *key)
{
    separate();
    append('"');
    m_bytes.append(key);
    m_bytes.append("\":");
}

void PxJsonLine::appendValue(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        m_bytes.append(value.toBool() ? "true" : "false");
        break;
    case QJsonValue::Double:
        appendNumber(value.toDouble());
        break;
    case QJsonValue::String:
        appendText(value.toString());
        break;
    case QJsonValue::Array: {
        const QJsonArray array = value.toArray();
        append('[');
        for (const auto &element : array) {
            separate();
            appendValue(element);
        }
        append(']');
        break;
    }
    case QJsonValue::Object: {
        const QJsonObject object = value.toObject();
        append('{');
        for (auto member = object.begin(); member != object.end(); ++member) {
            separate();
            appendText(member.key());
            append(':');
            appendValue(member.value());
        }
        append('}');
        break;
    }
    default:
        m_bytes.append("null");
    }
}

void PxJsonLine::appendNumber(double number)
{
    constexpr double largestExact = 9007199254740992.0; // 2 to the 53rd
    const bool isWhole = std::floor(number) == number && std::fabs(number) < largestExact;
    append(isWhole ? QByteArray::number(qint64(number))
                   : QByteArray::number(number, 'g', QLocale::FloatingPointShortest));
}

void PxJsonLine::appendText(const QString &text)
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

/** Returns how many units of the text it takes. */
int PxJsonLine::appendCharacter(const QChar *unit, const QChar *end)
{
    const bool isPair = unit->isHighSurrogate() && unit + 1 < end && unit[1].isLowSurrogate();
    const int units = isPair ? 2 : 1;
    if (*unit == '"' || *unit == '\\') {
        append('\\');
        append(unit->toLatin1());
        return units;
    }
    append(PxVisibleText::inJson(QString(unit, units)).toUtf8());
    return units;
}
