#pragma once

#include "writing/PxMarkup.h"

#include <QByteArray>
#include <QString>

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
        /** A null text leaves the attribute out. */
        Attribute(const char *attribute, const QString &text) : name(attribute), value(text) {}
        /** A word of the program, in which nothing has to be escaped. */
        Attribute(const char *attribute, const char *text) : name(attribute), word(text) {}

        const char *name;
        QString value;
        const char *word = nullptr;
    };
    using Attributes = std::initializer_list<Attribute>;

    /** Opens an element; close() closes the one that was opened last. */
    void open(const char *name, const Attributes &attributes = {});
    void close();
    void text(const QString &text);
    /** An element with a text and nothing else. */
    void element(const char *name, const QString &text, const Attributes &attributes = {});
    /** An element that never has an end tag, such as "img". */
    void single(const char *name, const Attributes &attributes);
    /** For a drawing, which is written by its own writer. */
    PxMarkup *writer() { return &m_html; }

    /** The document, with its type. */
    QByteArray document() const;

private:
    void writeAttributes(const Attributes &attributes);

    PxMarkup m_html{PxMarkup::Kind::Page};
};
