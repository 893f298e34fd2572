#include "PxXMLPlainReader.h"

#include "PxXMLLoader.h"

#include <QStringView>

#include <algorithm>
#include <array>

namespace {

/** What a byte may be; several of them together are what a text has. */
enum ByteKind : unsigned char {
    NameStart = 1,
    NamePart = 2,
    Blank = 4,
    Break = 8, ///< a full parser would turn it into a blank in a value
    NonAscii = 16,
    Reference = 32,
    Tag = 64,
    Other = 128 ///< left to the full parser, which would turn a carriage return into a line feed
};

constexpr std::array<unsigned char, 256> kindsOfBytes()
{
    std::array<unsigned char, 256> kinds{};
    for (std::size_t c = 0; c < 0x20; ++c)
        kinds[c] = Other;
    for (std::size_t c = 0x80; c < 0x100; ++c)
        kinds[c] = NonAscii;
    for (std::size_t c = 'a'; c <= 'z'; ++c)
        kinds[c] = kinds[c - 'a' + 'A'] = NameStart | NamePart;
    for (std::size_t c = '0'; c <= '9'; ++c)
        kinds[c] = NamePart;
    kinds['_'] = NameStart | NamePart;
    kinds['-'] = kinds['.'] = NamePart;
    kinds[' '] = Blank;
    kinds['\t'] = kinds['\n'] = Blank | Break;
    kinds['\r'] = Blank | Other;
    kinds['&'] = Reference;
    kinds['<'] = Tag;
    return kinds;
}

constexpr std::array<unsigned char, 256> kindsOf = kindsOfBytes();

bool is(char c, ByteKind kind)
{
    return (kindsOf[static_cast<unsigned char>(c)] & kind) != 0;
}

/** All kinds of bytes that the text has. */
unsigned kindsIn(std::string_view text)
{
    unsigned kinds = 0;
    for (const char c : text)
        kinds |= kindsOf[static_cast<unsigned char>(c)];
    return kinds;
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
    ++m_position;
    switch (current()) {
    case '/':
        return readEndTag();
    case '!':
        return readComment();
    default:
        return readStartTag();
    }
}

bool PxXMLPlainReader::readText()
{
    const std::size_t begin = m_position;
    skipBlanks();
    const std::size_t end = std::min(m_text.find('<', m_position), m_text.size());
    if (m_position == end)
        return true;
    m_position = end;
    const std::string_view text = m_text.substr(begin, end - begin);
    // "]]>" ends a CDATA section and is not allowed in text.
    if (m_open.empty() || text.find("]]>") != std::string_view::npos)
        return false;
    const std::optional<QString> decoded = decode(text, kindsIn(text));
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
    if (!skip("!--"))
        return false;
    const std::size_t end = m_text.find("--", m_position);
    if (end == std::string_view::npos || m_text.substr(end, 3) != "-->")
        return false;
    const std::string_view text = m_text.substr(m_position, end - m_position);
    m_position = end + 3;
    const unsigned kinds = kindsIn(text);
    if ((kinds & Reference) != 0) // a comment has no references
        return false;
    const std::optional<QString> decoded = decode(text, kinds);
    return decoded && add(m_document.createComment(*decoded));
}

bool PxXMLPlainReader::readStartTag()
{
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
    const unsigned kinds = kindsIn(value);
    if ((kinds & (Tag | Break)) != 0)
        return false;
    const std::optional<QString> decoded = decode(value, kinds);
    if (!decoded)
        return false;
    ++m_nodes; // add() compares, for the element
    element.setAttribute(m_texts.text(name), *decoded);
    return true;
}

bool PxXMLPlainReader::readEndTag()
{
    ++m_position;
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
    return m_position < m_text.size() ? m_text[m_position] : '\0';
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
    std::size_t end = begin;
    if (is(current(), NameStart)) {
        while (end < m_text.size() && is(m_text[end], NamePart))
            ++end;
    }
    m_position = end;
    return m_text.substr(begin, end - begin);
}

/** The decoded text of a value or between tags, which has these kinds; none if it is not plain. */
std::optional<QString> PxXMLPlainReader::decode(std::string_view utf8, unsigned kinds)
{
    const bool isAscii = (kinds & NonAscii) == 0;
    // QString would drop a byte order mark at the start, although it is an ordinary character here.
    if ((kinds & Other) != 0 || (!isAscii && utf8.substr(0, byteOrderMark.size()) == byteOrderMark))
        return std::nullopt;
    QString text = m_texts.text(utf8);
    // Invalid UTF-8 becomes the replacement character; U+FFFE and U+FFFF are not characters.
    if (!isAscii && (text.contains(QChar::ReplacementCharacter) || text.contains(QChar(0xFFFE)) ||
                     text.contains(QChar(0xFFFF))))
        return std::nullopt;
    return (kinds & Reference) == 0 ? text : resolved(text);
}
