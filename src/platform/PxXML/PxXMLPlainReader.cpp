#include "PxXMLPlainReader.h"

#include "PxXMLLoader.h"

#include <QStringView>

#include <algorithm>
#include <array>

namespace {

enum CharacterClass : unsigned char {
    Other = 0,
    NameStart = 1,
    NamePart = 2,
    Blank = 4,
    Plain = 8
};

/** The classes of each byte; a byte without a class is left to the full parser. */
constexpr std::array<unsigned char, 256> characterClasses()
{
    std::array<unsigned char, 256> classes{};
    for (std::size_t c = 0x20; c < 0x100; ++c)
        classes[c] = Plain;
    for (std::size_t c = 'a'; c <= 'z'; ++c) {
        classes[c] |= NameStart | NamePart;
        classes[c - 'a' + 'A'] |= NameStart | NamePart;
    }
    for (std::size_t c = '0'; c <= '9'; ++c)
        classes[c] |= NamePart;
    classes['_'] |= NameStart | NamePart;
    classes['-'] |= NamePart;
    classes['.'] |= NamePart;
    classes[' '] |= Blank;
    classes['\t'] = classes['\n'] = classes['\r'] = Blank;
    return classes;
}

constexpr std::array<unsigned char, 256> classes = characterClasses();

bool is(char c, CharacterClass characterClass)
{
    return (classes[static_cast<unsigned char>(c)] & characterClass) != 0;
}

// Real files have fewer nodes. A larger file, which may be hostile, is left to the full parser
// here; building most of its nodes twice would cost too much.
constexpr int maximumNodes = 20000;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/** The text with its references replaced; none if it has a reference other than the five of XML. */
std::optional<QString> resolved(QStringView text)
{
    static const struct
    {
        QLatin1String reference;
        char16_t character;
    } references[] = {
        {QLatin1String("&lt;"), u'<'},   {QLatin1String("&gt;"), u'>'},
        {QLatin1String("&quot;"), u'"'}, {QLatin1String("&apos;"), u'\''},
        {QLatin1String("&amp;"), u'&'},
    };
    // Appended part by part: replacing in place would take quadratic time.
    QString result;
    result.reserve(int(text.size()));
    qsizetype begin = 0;
    for (;;) {
        const qsizetype end = text.indexOf(QLatin1Char('&'), begin);
        if (end == -1)
            break;
        result.append(text.mid(begin, end - begin));
        const QStringView rest = text.mid(end);
        const auto found =
            std::find_if(std::begin(references), std::end(references),
                         [rest](const auto &row) { return rest.startsWith(row.reference); });
        if (found == std::end(references))
            return std::nullopt;
        result.append(QChar(found->character));
        begin = end + found->reference.size();
    }
    result.append(text.mid(begin));
    return result;
}

} // namespace

PxXMLPlainReader::PxXMLPlainReader(std::string_view text, PxXMLTextPool &texts)
    : m_text(text)
    , m_texts(texts)
    , m_document(QDomDocumentType())
    , m_parent(m_document)
{}

QDomDocument PxXMLPlainReader::read()
{
    bool isPlain = readDeclaration();
    while (isPlain && m_position < m_text.size())
        isPlain = current() == '<' ? readMarkup() : readText();
    return isPlain && m_hasRoot && m_open.empty() ? m_document : QDomDocument();
}

/** Accepts only the declaration that all editors write. */
bool PxXMLPlainReader::readDeclaration()
{
    if (!skip("<?xml version=\"1.0\""))
        return true;
    QString data = QStringLiteral("version='1.0'");
    if (skip(" encoding=\"UTF-8\""))
        data += QLatin1String(" encoding='UTF-8'");
    else if (skip(" encoding=\"utf-8\""))
        data += QLatin1String(" encoding='utf-8'");
    return skip("?>") && add(m_document.createProcessingInstruction(QStringLiteral("xml"), data));
}

bool PxXMLPlainReader::readMarkup()
{
    if (startsWith("</"))
        return readEndTag();
    return startsWith("<!") ? readComment() : readStartTag();
}

bool PxXMLPlainReader::readText()
{
    const std::size_t end = std::min(m_text.find('<', m_position), m_text.size());
    const std::string_view text = m_text.substr(m_position, end - m_position);
    m_position = end;
    if (std::all_of(text.begin(), text.end(), [](char c) { return is(c, Blank); }))
        return true;
    // "]]>" ends a CDATA section and is not allowed in text.
    if (m_open.empty() || text.find("]]>") != std::string_view::npos)
        return false;
    const std::optional<QString> decoded = decode(text);
    if (!decoded)
        return false;
    if (QStringView(*decoded).trimmed().isEmpty())
        return true;
    if (m_textNode.isNull())
        m_textNode = m_document.createTextNode(QString());
    QDomNode node = m_textNode.cloneNode();
    node.setNodeValue(*decoded);
    return add(node);
}

bool PxXMLPlainReader::readComment()
{
    if (!skip("<!--"))
        return false;
    const std::size_t end = m_text.find("--", m_position);
    if (end == std::string_view::npos || m_text.substr(end, 3) != "-->")
        return false;
    const std::string_view text = m_text.substr(m_position, end - m_position);
    m_position = end + 3;
    if (text.find('&') != std::string_view::npos) // a comment has no references
        return false;
    const std::optional<QString> decoded = decode(text);
    return decoded && add(m_document.createComment(*decoded));
}

bool PxXMLPlainReader::readStartTag()
{
    ++m_position;
    const std::string_view name = readName();
    if (name.empty() || (m_open.empty() && m_hasRoot) ||
        int(m_open.size()) >= PxXMLLoader::maximumDepth)
        return false;
    QDomElement element = m_document.createElement(m_texts.text(name));
    m_attributes.clear();
    bool hasBlank = skipBlanks();
    while (hasBlank && is(current(), NameStart)) {
        if (!readAttribute(element))
            return false;
        hasBlank = skipBlanks();
    }
    const bool isEmpty = skip('/');
    if (!skip('>') || !add(element))
        return false;
    m_hasRoot = true;
    if (!isEmpty) {
        m_open.push_back(name);
        m_parent = element;
    }
    return true;
}

bool PxXMLPlainReader::readAttribute(QDomElement &element)
{
    constexpr std::size_t maximumAttributes = 64; // they are compared pairwise
    const std::string_view name = readName();
    skipBlanks();
    if (!skip('='))
        return false;
    skipBlanks();
    const char quote = current();
    const std::size_t begin = m_position + 1;
    const std::size_t end = m_text.find(quote, begin);
    if ((quote != '"' && quote != '\'') || end == std::string_view::npos ||
        m_attributes.size() >= maximumAttributes ||
        std::find(m_attributes.begin(), m_attributes.end(), name) != m_attributes.end())
        return false;
    m_attributes.push_back(name);
    const std::string_view value = m_text.substr(begin, end - begin);
    m_position = end + 1;
    // A full parser would turn line breaks and tabs into blanks.
    if (value.find_first_of("<\n\t") != std::string_view::npos)
        return false;
    const std::optional<QString> decoded = decode(value);
    if (!decoded)
        return false;
    ++m_nodes; // add() compares, for the element
    element.setAttribute(m_texts.text(name), *decoded);
    return true;
}

bool PxXMLPlainReader::readEndTag()
{
    m_position += 2;
    const std::string_view name = readName();
    skipBlanks();
    if (m_open.empty() || m_open.back() != name || !skip('>'))
        return false;
    m_open.pop_back();
    m_parent = m_parent.parentNode();
    return true;
}

bool PxXMLPlainReader::add(const QDomNode &node)
{
    m_parent.appendChild(node);
    return ++m_nodes <= maximumNodes;
}

char PxXMLPlainReader::current() const
{
    const std::string_view rest = m_text.substr(m_position);
    return rest.empty() ? '\0' : rest.front();
}

bool PxXMLPlainReader::startsWith(std::string_view token) const
{
    return m_text.compare(m_position, token.size(), token) == 0;
}

bool PxXMLPlainReader::skip(std::string_view token)
{
    if (!startsWith(token))
        return false;
    m_position += token.size();
    return true;
}

bool PxXMLPlainReader::skip(char c)
{
    const bool isThere = current() == c;
    m_position += isThere ? 1 : 0;
    return isThere;
}

/** Returns whether there were any. */
bool PxXMLPlainReader::skipBlanks()
{
    const std::size_t begin = m_position;
    while (is(current(), Blank))
        ++m_position;
    return m_position > begin;
}

/** Empty if there is no name here. */
std::string_view PxXMLPlainReader::readName()
{
    const std::size_t begin = m_position;
    if (is(current(), NameStart)) {
        while (is(current(), NamePart))
            ++m_position;
    }
    return m_text.substr(begin, m_position - begin);
}

/** The decoded text of a value or between tags; none if it is not plain. */
std::optional<QString> PxXMLPlainReader::decode(std::string_view utf8)
{
    // A full parser would turn a carriage return into a line feed.
    const auto isPlain = [](char c) { return is(c, Plain) || c == '\n' || c == '\t'; };
    if (!std::all_of(utf8.begin(), utf8.end(), isPlain))
        return std::nullopt;
    const bool isAscii =
        std::none_of(utf8.begin(), utf8.end(), [](char c) { return bool(c & 0x80); });
    // QString would drop a byte order mark at the start, although it is an ordinary character here.
    if (!isAscii && utf8.substr(0, byteOrderMark.size()) == byteOrderMark)
        return std::nullopt;
    QString text = m_texts.text(utf8);
    // Invalid UTF-8 becomes the replacement character; U+FFFE and U+FFFF are not characters.
    if (!isAscii && (text.contains(QChar::ReplacementCharacter) || text.contains(QChar(0xFFFE)) ||
                     text.contains(QChar(0xFFFF))))
        return std::nullopt;
    return utf8.find('&') == std::string_view::npos ? text : resolved(text);
}
