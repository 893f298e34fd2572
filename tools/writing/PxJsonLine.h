#pragma once

#include <QByteArray>

#include <string>

class QChar;
class QJsonValue;
class QString;

/**
 * A JSON object in one line, without blanks, to which members are added in the order in which they
 * are written. Keys are ASCII. Characters that a terminal might obey or that are invisible are
 * escaped.
 *
 * It takes a third of the time of a QJsonObject that a QJsonDocument writes.
 */
class PxJsonLine
{
public:
    void add(const char *key, const QJsonValue &value);
    /** Adds an element to an array. */
    void add(const QJsonValue &element);
    void beginObject(const char *key);
    void endObject() { append('}'); }
    void beginArray(const char *key);
    /** Begins an element of an array. */
    void beginObject();
    void endArray() { append(']'); }

    QByteArray toUtf8() const;

private:
    void append(char character) { m_bytes.push_back(character); }
    void append(const QByteArray &bytes)
    {
        m_bytes.append(bytes.constData(), size_t(bytes.size()));
    }
    void separate();
    void appendKey(const char *key);
    void appendValue(const QJsonValue &value);
    void appendNumber(double number);
    void appendText(const QString &text);
    int appendCharacter(const QChar *unit, const QChar *end);

    std::string m_bytes;
};
