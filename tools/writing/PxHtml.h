#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QVector>

#include <initializer_list>

/**
 * Writes elements of HTML. All texts are escaped, and characters that cannot be seen become
 * escapes, so that no text of a file is ever markup. A page is well-formed as XML, too.
 *
 * A writer of XML would close an empty `script` in a way that browsers do not understand, and pages
 * with drawings in them take it four times as long.
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

    /** Opens an element; close() closes the one that was opened last. Names must outlive this. */
    void open(const char *name, const Attributes &attributes = {});
    /** Of the element that was opened last, as long as nothing is in it. */
    void attribute(const char *name, const QString &value);
    void close();
    void text(const QString &text);
    /** Begins a new line of a text, where lines count. */
    void newLine();
    /** An element with a text and nothing else. */
    void element(const char *name, const QString &text, const Attributes &attributes = {});
    /** An element that never has an end tag, such as "img". */
    void single(const char *name, const Attributes &attributes);

    /** The document, with its type. */
    QByteArray document() const;

private:
    void openTag(const char *name, const Attributes &attributes);
    void finishTag();
    void append(const QString &text);

    QString m_text = QStringLiteral("<!DOCTYPE html>\n");
    QVector<QLatin1String> m_open; ///< the names of the elements that are not closed, outer first
    bool m_isInTag = false;
};
