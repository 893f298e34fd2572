#include "check/source/PxSourceDocument.h"

#include "check/source/PxStartTagScanner.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace {

/** The text between tags, with its references resolved. */
QString decoded(const QString &text)
{
    if (!text.contains(QLatin1Char('&')))
        return text;
    QXmlStreamReader reader(QLatin1String("<t>") + text + QLatin1String("</t>"));
    reader.readNextStartElement();
    return reader.readElementText();
}

} // namespace

PxSourceDocument::PxSourceDocument(const QString &text) : m_text(text)
{
    findLines();
    read();
}

void PxSourceDocument::findLines()
{
    m_lineStarts.append(0);
    for (int i = 0; i < m_text.size(); ++i) {
        if (endsLine(m_text, i))
            m_lineStarts.append(i + 1);
        else if (m_text.at(i).isLowSurrogate())
            m_secondHalves.append(i);
    }
}

void PxSourceDocument::read()
{
    for (int position = 0; position < m_text.size();) {
        const int markup = m_text.indexOf(QLatin1Char('<'), position);
        readText(position, markup < 0 ? m_text.size() : markup);
        position = markup < 0 ? m_text.size() : readMarkup(markup);
    }
}

void PxSourceDocument::readText(int begin, int end)
{
    const QStringView text = QStringView(m_text).mid(begin, end - begin);
    if (text.trimmed().isEmpty())
        return;
    PxSourceRange range{begin, end};
    while (m_text.at(range.begin).isSpace())
        ++range.begin;
    while (m_text.at(range.end - 1).isSpace())
        --range.end;
    addNode({PxSourceNode::Kind::Text, decoded(text.toString()), range});
}

/** Returns where the markup ends, or the end of the text if its end is missing; so do all below. */
int PxSourceDocument::readMarkup(int begin)
{
    const QStringView markup = QStringView(m_text).mid(begin);
    if (markup.startsWith(u"<!--"))
        return readNode(begin, "<!--", "-->", PxSourceNode::Kind::Comment);
    if (markup.startsWith(u"<![CDATA["))
        return readNode(begin, "<![CDATA[", "]]>", PxSourceNode::Kind::CharacterData);
    if (markup.startsWith(u"<?"))
        return readNode(begin, "<?", "?>", PxSourceNode::Kind::ProcessingInstruction);
    if (markup.startsWith(u"<!"))
        return behindDocumentType(begin);
    return markup.startsWith(u"</") ? readEndTag(begin) : readStartTag(begin);
}

int PxSourceDocument::readNode(int begin, const char *opening, const char *closing,
                               PxSourceNode::Kind kind)
{
    const int contentBegin = begin + int(qstrlen(opening));
    const int end = behind(closing, contentBegin);
    const int contentEnd = qMax(contentBegin, end - int(qstrlen(closing)));
    addNode({kind, m_text.mid(contentBegin, contentEnd - contentBegin), {begin, end}});
    return end;
}

void PxSourceDocument::addNode(const PxSourceNode &node)
{
    if (!m_open.isEmpty())
        m_open.constLast()->nodes.append(node);
    else if (!m_root)
        m_prolog.append(node);
}

int PxSourceDocument::readStartTag(int begin)
{
    const PxStartTagScanner tag(QStringView(m_text).mid(begin), begin);
    m_elements.emplace_back();
    PxSourceElement &element = m_elements.back();
    element.nameRange = tag.nameRange();
    element.name = m_text.mid(begin + 1, element.nameRange.end - begin - 1);
    element.range = {begin, behind(">", tag.end())};
    element.attributes = tag.attributes();
    if (!m_open.isEmpty()) {
        element.parent = m_open.constLast();
        m_open.constLast()->children.append(&element);
    } else if (!m_root) {
        m_root = &element;
    }
    if (tag.end() < m_text.size() && m_text.at(tag.end()) != QLatin1Char('/'))
        m_open.append(&element);
    return element.range.end;
}

int PxSourceDocument::readEndTag(int begin)
{
    const int end = behind(">", begin);
    if (!m_open.isEmpty())
        m_open.takeLast()->range.end = end;
    return end;
}

int PxSourceDocument::behindDocumentType(int begin) const
{
    QChar quote;
    for (int i = begin; i < m_text.size(); ++i) {
        const QChar c = m_text.at(i);
        if (quote.isNull() && c == QLatin1Char('>'))
            return i + 1;
        if (c == quote)
            quote = QChar();
        else if (quote.isNull() && (c == QLatin1Char('"') || c == QLatin1Char('\'')))
            quote = c;
    }
    return m_text.size();
}

int PxSourceDocument::behind(const char *token, int from) const
{
    const QLatin1String text(token);
    const int found = m_text.indexOf(text, from);
    return found < 0 ? m_text.size() : found + text.size();
}

bool PxSourceDocument::connectTo(const QDomElement &root)
{
    // Walks through the tree of the library in the order of start tags, which m_elements has, too.
    QDomElement dom = root;
    for (PxSourceElement &element : m_elements) {
        if (dom.tagName() != element.name)
            return false;
        element.dom = dom;
        for (PxSourceAttribute &attribute : element.attributes)
            attribute.value = dom.attribute(attribute.name);
        QDomElement next = dom.firstChildElement();
        while (next.isNull() && !dom.isNull() && dom != root) {
            next = dom.nextSiblingElement();
            if (next.isNull())
                dom = dom.parentNode().toElement();
        }
        dom = next;
    }
    return !root.isNull() && dom.isNull();
}

QStringView PxSourceDocument::line(int number) const
{
    if (number < 1 || number > m_lineStarts.size())
        return {};
    const int begin = m_lineStarts.at(number - 1);
    const int end = number < m_lineStarts.size() ? m_lineStarts.at(number) : m_text.size();
    QStringView line = QStringView(m_text).mid(begin, end - begin);
    while (line.endsWith(QLatin1Char('\n')) || line.endsWith(QLatin1Char('\r')))
        line.chop(1);
    return line;
}

PxPlace PxSourceDocument::place(const PxSourceRange &range) const
{
    const auto [line, column] = lineAndColumn(range.begin);
    const auto [endLine, endColumn] = lineAndColumn(range.end);
    return {QString(), line, column, endLine, endColumn};
}

PxPlace PxSourceDocument::place(int line, int column) const
{
    const int begin = line > m_lineStarts.size() ? m_text.size() : m_lineStarts.at(line - 1);
    const int index = int(qMin<qint64>(qint64(begin) + column - 1, m_text.size()));
    return place({index, index});
}

bool PxSourceDocument::endsLine(const QString &text, int index)
{
    const QChar next = index + 1 < text.size() ? text.at(index + 1) : QChar();
    return text.at(index) == QLatin1Char('\n') ||
           (text.at(index) == QLatin1Char('\r') && next != QLatin1Char('\n'));
}

QPair<int, int> PxSourceDocument::lineAndColumn(int index) const
{
    const auto next = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), index);
    const int line = int(next - m_lineStarts.begin());
    const int begin = m_lineStarts.at(line - 1);
    // A surrogate pair is two units of the text, but one character.
    const auto first = std::lower_bound(m_secondHalves.begin(), m_secondHalves.end(), begin);
    const auto last = std::lower_bound(first, m_secondHalves.end(), index);
    return {line, index - begin - int(last - first) + 1};
}
