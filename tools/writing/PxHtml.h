#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

#include <initializer_list>

/**
 * Writes elements of HTML. All texts are escaped, and characters that cannot be seen become
 * escapes, so that no text of a file is ever markup.
 */
class PxHtml
{
public:
    struct Attribute
    {
        const char *name;
        QString value; ///< a null text leaves the attribute out
    };
    using Attributes = std::initializer_list<Attribute>;

    PxHtml();
    Q_DISABLE_COPY(PxHtml)

    /** Opens an element; close() closes the one that was opened last. */
    void open(const char *name, const Attributes &attributes = {});
    void close();
    void text(const QString &text);
    /** An element with a text and nothing else. */
    void element(const char *name, const QString &text, const Attributes &attributes = {});
    /** An element that never has an end tag, such as "img". */
    void single(const char *name, const Attributes &attributes);
    /** For a drawing, which is written by its own writer. */
    QXmlStreamWriter *writer() { return &m_xml; }

    /** The document, with its type. */
    QByteArray document() const;

private:
    void writeAttributes(const Attributes &attributes);

    QByteArray m_bytes;
    QBuffer m_buffer;
    QXmlStreamWriter m_xml;
};
