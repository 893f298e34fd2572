#include "PxXMLMarkupScanner.h"

#include "PxXMLLoader.h"

#include <algorithm>

std::optional<PxXMLFault> PxXMLMarkupScanner::scan()
{
    std::optional<PxXMLFault> found;
    while (!found) {
        m_position = m_text.find('<', m_position);
        if (m_position == std::string_view::npos)
            break;
        if (startsWith("<!--"))
            skip("<!--", "-->");
        else if (startsWith("<![CDATA["))
            skip("<![CDATA[", "]]>");
        else if (startsWith("<?"))
            skip("<?", "?>");
        else if (startsWith("</"))
            skip("</", ">");
        else if (startsWith("<!"))
            found = scanDocumentType();
        else
            found = scanTag();
    }
    return found;
}

std::optional<PxXMLFault> PxXMLMarkupScanner::scanTag()
{
    int attributes = 0;
    while (moveTo("<>\"'") && current() != '>') {
        if (current() == '<') {
            stop();
            break;
        }
        if (++attributes > PxXMLLoader::maximumAttributes)
            return fault(PxXMLFault::Kind::Limit,
                         QStringLiteral("the tag has attribute %1, no more than %2 are allowed")
                             .arg(attributes)
                             .arg(PxXMLLoader::maximumAttributes));
        if (const std::optional<PxXMLFault> found = scanAttributeValue())
            return found;
    }
    return std::nullopt;
}

std::optional<PxXMLFault> PxXMLMarkupScanner::scanAttributeValue()
{
    const char quote = current();
    while (moveTo(quote == '"' ? "\"<&" : "'<&") && current() != quote) {
        if (current() == '<') { // usually the closing quote of an earlier value is missing
            stop();
            break;
        }
        if (!isOwnReference())
            return fault(PxXMLFault::Kind::NotWellFormed,
                         QStringLiteral("no entities are allowed in an attribute but those of XML "
                                        "itself; a plain '&' is written &amp;"));
    }
    return std::nullopt;
}

std::optional<PxXMLFault> PxXMLMarkupScanner::scanDocumentType()
{
    while (moveTo("\"'[>") && current() != '>') {
        if (current() == '[')
            return fault(PxXMLFault::Kind::Limit,
                         QStringLiteral("the document type declaration has an internal subset, "
                                        "none is allowed"));
        moveTo(current() == '"' ? "\"" : "'");
    }
    return std::nullopt;
}

bool PxXMLMarkupScanner::isOwnReference() const
{
    constexpr std::string_view references[] = {"&#", "&amp;", "&lt;", "&gt;", "&quot;", "&apos;"};
    return std::any_of(std::begin(references), std::end(references),
                       [this](std::string_view reference) { return startsWith(reference); });
}

/** Moves behind the current character to the next of these; to the end if there is none. */
bool PxXMLMarkupScanner::moveTo(std::string_view characters)
{
    m_position = std::min(m_text.find_first_of(characters, m_position + 1), m_text.size());
    return m_position != m_text.size();
}

bool PxXMLMarkupScanner::startsWith(std::string_view token) const
{
    return m_text.compare(m_position, token.size(), token) == 0;
}

/**
 * Moves behind the end, which may share no character with the beginning: "<!-->" is not closed yet.
 */
void PxXMLMarkupScanner::skip(std::string_view begin, std::string_view end)
{
    const std::size_t found = m_text.find(end, m_position + begin.size());
    m_position = found == std::string_view::npos ? m_text.size() : found + end.size();
}

PxXMLFault PxXMLMarkupScanner::fault(PxXMLFault::Kind kind, const QString &message) const
{
    return faultBehind(QString::fromUtf8(m_text.data(), int(m_position)), kind, message);
}

PxXMLFault PxXMLMarkupScanner::faultBehind(const QString &text, PxXMLFault::Kind kind,
                                           const QString &message)
{
    int line = 1;
    int lineBegin = 0;
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair = text.midRef(i, 2) == QLatin1String("\r\n");
        if (text.at(i) == QLatin1Char('\n') || (text.at(i) == QLatin1Char('\r') && !isPair)) {
            ++line;
            lineBegin = i + 1;
        }
    }
    return {kind, message, line, text.size() - lineBegin + 1};
}
