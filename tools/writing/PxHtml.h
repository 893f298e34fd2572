#pragma once

#include <QByteArray>
#include <QString>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

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
        /** With a text of the program, which needs no escapes. */
        Attribute(const char *attribute, const char *text) : name(attribute), plain(text) {}
        /** A null text leaves the attribute out. */
        Attribute(const char *attribute, const QString &text) : name(attribute), value(text) {}

        const char *name;
        const char *plain = nullptr;
        QString value = {};
    };
    using Attributes = std::initializer_list<Attribute>;

    /** `begin` stands before the first element. */
    explicit PxHtml(const char *begin = "<!DOCTYPE html>\n") : m_text(begin) {}

    /** Opens an element; close() closes the one that was opened last. Names must outlive this. */
    void open(const char *name, const Attributes &attributes = {});
    /** Of the element that was opened last, as long as nothing is in it. */
    void attribute(std::string_view name, const QString &value);
    /** With numbers or words of the program, which need no escapes. */
    void plainAttribute(std::string_view name, std::string_view value);
    void close();
    void text(const QString &text);
    /** Begins a new line of a text, where lines count. */
    void newLine();
    /** An element with a text and nothing else. */
    void element(const char *name, const QString &text, const Attributes &attributes = {});
    /** An element that never has an end tag, such as "img". */
    void single(const char *name, const Attributes &attributes);

    /** All that was written. */
    QByteArray document() const;

private:
    void openTag(const char *name, const Attributes &attributes);
    void beginAttribute(std::string_view name);
    void finishTag();
    void append(const QString &text);

    std::string m_text;                   ///< in UTF-8
    std::vector<std::string_view> m_open; ///< names of elements that are not closed, outer first
    bool m_isInTag = false;
};
