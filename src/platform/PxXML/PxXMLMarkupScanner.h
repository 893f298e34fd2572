#pragma once

#include "PxXMLFault.h"

#include <QString>

#include <optional>
#include <string_view>

/**
 * Looks through a text for what must not reach the XML reader: tags with too many attributes (it
 * compares them pairwise), an internal subset, which could declare entities and attribute defaults,
 * and references to entities in attribute values (it would take them as text).
 *
 * Works in linear time. Otherwise malformed markup is none of its concern: where it meets some it
 * stops, as the reader will, and finds nothing.
 */
class PxXMLMarkupScanner
{
public:
    /** The text is UTF-8 without byte order mark and must outlive the scanner. */
    explicit PxXMLMarkupScanner(std::string_view text) : m_text(text) {}

    std::optional<PxXMLFault> scan();

private:
    bool startsWith(std::string_view token) const;
    void skip(std::string_view begin, std::string_view end);
    std::optional<PxXMLFault> scanTag();
    std::optional<PxXMLFault> scanAttributeValue();
    std::optional<PxXMLFault> scanDocumentType();
    bool isOwnReference() const;
    void stop() { m_position = m_text.size(); }
    PxXMLFault fault(PxXMLFault::Kind kind, const QString &message) const;

    std::string_view m_text;
    std::size_t m_position = 0;
};
