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
    for (++m_position; m_position < m_text.size(); ++m_position) {
        switch (m_text[m_position]) {
        case '>':
            return std::nullopt;
        case '<':
            stop();
            return std::nullopt;
        case '"':
        case '\'':
            if (++attributes > PxXMLLoader::maximumAttributes)
                return fault(PxXMLFault::Kind::Limit,
                             QStringLiteral("the tag has attribute %1, no more than %2 are allowed")
                                 .arg(attributes)
                                 .arg(PxXMLLoader::maximumAttributes));
            if (const std::optional<PxXMLFault> found = scanAttributeValue())
                return found;
        }
    }
    return std::nullopt;
}

std::optional<PxXMLFault> PxXMLMarkupScanner::scanAttributeValue()
{
    const char quote = m_text[m_position];
    for (++m_position; m_position < m_text.size() && m_text[m_position] != quote; ++m_position) {
        // Usually the closing quote of an earlier value is missing.
        if (m_text[m_position] == '<')
            stop();
        else if (m_text[m_position] == '&' && !isOwnReference())
            return fault(PxXMLFault::Kind::NotWellFormed,
                         QStringLiteral("no entities are allowed in an attribute but those of XML "
                                        "itself; a plain '&' is written &amp;"));
    }
    return std::nullopt;
}

std::optional<PxXMLFault> PxXMLMarkupScanner::scanDocumentType()
{
    char quote = '\0';
    for (; m_position < m_text.size(); ++m_position) {
        const char c = m_text[m_position];
        if (quote)
            quote = c == quote ? '\0' : quote;
        else if (c == '"' || c == '\'')
            quote = c;
        else if (c == '[')
            return fault(PxXMLFault::Kind::Limit,
                         QStringLiteral("the document type declaration has an internal subset, "
                                        "none is allowed"));
        else if (c == '>')
            break;
    }
    return std::nullopt;
}

bool PxXMLMarkupScanner::isOwnReference() const
{
    constexpr std::string_view references[] = {"&#", "&amp;", "&lt;", "&gt;", "&quot;", "&apos;"};
    return std::any_of(std::begin(references), std::end(references),
                       [this](std::string_view reference) { return startsWith(reference); });
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
    const std::string_view before = m_text.substr(0, m_position);
    const std::size_t lineStart = before.rfind('\n') + 1; // 0 in the first line, as npos + 1 is 0
    // Columns count UTF-16 units, as those of the reader do.
    const QString line =
        QString::fromUtf8(before.data() + lineStart, int(before.size() - lineStart));
    return {kind, message, std::count(before.begin(), before.end(), '\n') + 1, line.size() + 1};
}
