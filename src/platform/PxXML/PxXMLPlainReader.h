#pragma once

#include "PxXMLTextPool.h"

#include <QDomDocument>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

/**
 * Reads the XML that nearly all files consist of, in a third of the time of a full parser.
 *
 * It knows elements with ASCII names, attributes, texts and comments in UTF-8, and the five
 * entities of XML. It never reports errors: whatever it does not know or is not sure of, including
 * malformed text, is left to the full parser. For a text that it accepts it builds the same tree as
 * the full parser.
 */
class PxXMLPlainReader
{
public:
    /** The text has no byte order mark; it and the pool must outlive the reader. */
    PxXMLPlainReader(std::string_view text, PxXMLTextPool &texts);

    /** A null document if the text has anything that this reader does not know. */
    QDomDocument read();

private:
    bool readDeclaration();
    bool readMarkup();
    bool readText();
    bool readComment();
    bool readStartTag();
    bool readAttribute(QDomElement &element);
    bool readEndTag();
    bool add(const QDomNode &node);

    /** A zero at the end. */
    char current() const;
    bool startsWith(std::string_view token) const;
    bool skip(std::string_view token);
    bool skip(char c);
    bool skipBlanks();
    std::string_view readName();
    std::optional<QString> decode(std::string_view utf8, unsigned kinds);

    std::string_view m_text;
    std::size_t m_position = 0;
    PxXMLTextPool &m_texts;
    QDomDocument m_document;
    QDomNode m_parent;
    QDomNode m_textNode;                  // copied, because a new text node would allocate its name
    std::vector<std::string_view> m_open; // names of the elements that are still open
    std::vector<std::string_view> m_attributes; // names of the attributes of the current tag
    bool m_hasRoot = false;
    int m_nodes = 0;
};
