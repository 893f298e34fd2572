#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QVector>

#include <string>

/**
 * Writes elements of XML or HTML as UTF-8. Texts are escaped, so that none of them is ever markup,
 * and so are the characters that PxVisibleText escapes. Names and what is called plain come from
 * the program and are written as they are.
 */
class PxMarkup
{
public:
    enum class Kind {
        File, ///< XML: each element begins a line, escapes are references such as &#x202E;
        Page, ///< HTML: no line breaks, escapes are those of PxVisibleText::line()
    };

    explicit PxMarkup(Kind kind) : m_kind(kind) {}

    Kind kind() const { return m_kind; }
    void open(const char *name);
    /** An element in which nothing was written has no end tag; an empty text is something. */
    void close();
    /** Of the element that was opened last, before anything is written in it. */
    void attribute(const char *name, const QString &value);
    void plainAttribute(const char *name, QLatin1String value);
    void text(const QString &text);
    void plainText(QLatin1String text);

    QByteArray bytes() const { return QByteArray::fromStdString(m_bytes); }

private:
    void beginAttribute(const char *name);
    void append(QLatin1String text) { m_bytes.append(text.data(), std::size_t(text.size())); }
    void appendEscaped(const QString &text, bool isAttribute);
    void appendVisible(const QStringRef &text);
    bool appendPlain(const QString &text);
    void beginLine();
    void endTag();

    const Kind m_kind;
    std::string m_bytes;
    QVector<const char *> m_open; ///< from the outermost element
    bool m_isInTag = false;       ///< the start tag of the last element can still get attributes
    bool m_wasTextWritten = false;
};
