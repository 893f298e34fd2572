#pragma once

#include "PxXMLFault.h"

#include <QString>

#include <optional>
#include <string_view>

/**
 * Scans a text for markup that must not reach the XML reader: tags with too many attributes (the
 * reader compares them pairwise), an internal subset (it could declare entities and attribute
 * defaults), and references to entities in attribute values (the reader would take them as text).
 *
 * It works in linear time. Other malformed markup is not its task: it stops there without a
 * finding, as the reader stops there with an error.
 */
class PxXMLMarkupScanner
{
public:
    /** The text is UTF-8 without a byte order mark and must outlive the scanner. */
    explicit PxXMLMarkupScanner(std::string_view text) : m_text(text) {}

    std::optional<PxXMLFault> scan();
    /**
     * A fault at the end of this text. Columns count UTF-16 units, and CR, LF and CRLF are line
     * ends, as for the reader.
     */
    static PxXMLFault faultBehind(const QString &text, PxXMLFault::Kind kind,
                                  const QString &message);

private:
    bool startsWith(std::string_view token) const;
    void skip(std::string_view begin, std::string_view end);
    std::optional<PxXMLFault> scanTag();
    std::optional<PxXMLFault> scanAttributeValue();
    std::optional<PxXMLFault> scanDocumentType();
    bool isOwnReference() const;
    bool moveTo(std::string_view characters);
    char current() const { return m_text[m_position]; }
    void stop() { m_position = m_text.size(); }
    PxXMLFault fault(PxXMLFault::Kind kind, const QString &message) const;

    std::string_view m_text;
    std::size_t m_position = 0;
};
