#include "check/PxSourceDocument.h"

#include "check/PxStartTagScanner.h"

#include <PxXMLLoader.h>

#include <QSet>

#include <algorithm>

PxSourceDocument::PxSourceDocument(const QString &text) : m_text(text)
{
    m_lineStarts.append(0);
    for (int i = 0; i < m_text.size(); ++i) {
        if (m_text.at(i) == QLatin1Char('\n'))
            m_lineStarts.append(i + 1);
        else if (m_text.at(i).isLowSurrogate())
            m_secondHalves.append(i);
    }
    read();
}

void PxSourceDocument::read()
{
    QXmlStreamReader reader(m_text);
    reader.setNamespaceProcessing(false);
    int begin = 0;
    while (!reader.atEnd() && m_open.size() <= PxXMLLoader::maximumDepth) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        const int end = int(reader.characterOffset());
        switch (token) {
        case QXmlStreamReader::StartElement:
            readStartTag(reader, begin);
            break;
        case QXmlStreamReader::EndElement:
            m_open.takeLast()->range.end = end;
            break;
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            readNode(reader, begin, end);
            break;
        case QXmlStreamReader::Invalid:
            classifyFault(reader, begin);
            break;
        default:
            break;
        }
        begin = nextBegin(token, end);
    }
}

/** Where the next token begins: the reader takes more than a token to know that it has ended. */
int PxSourceDocument::nextBegin(QXmlStreamReader::TokenType token, int end) const
{
    if (token == QXmlStreamReader::StartDocument && !m_text.startsWith(QLatin1String("<?xml")))
        return 0;
    const bool hasTakenBracket =
        token == QXmlStreamReader::Characters && end > 0 && m_text.at(end - 1) == QLatin1Char('<');
    return hasTakenBracket ? end - 1 : end;
}

void PxSourceDocument::readStartTag(QXmlStreamReader &reader, int begin)
{
    begin = m_text.indexOf(QLatin1Char('<'), begin); // behind blanks outside the document element
    const int end = int(reader.characterOffset());
    const PxStartTagScanner tag(QStringView(m_text).mid(begin, end - begin), begin);
    m_elements.emplace_back();
    PxSourceElement &element = m_elements.back();
    element.name = reader.qualifiedName().toString();
    element.nameRange = tag.nameRange();
    element.range = {begin, end};
    element.attributes = tag.attributes();
    const QXmlStreamAttributes values = reader.attributes();
    for (int i = 0; i < qMin(values.size(), element.attributes.size()); ++i)
        element.attributes[i].value = values[i].value().toString();
    if (m_open.isEmpty()) {
        m_root = &element;
    } else {
        element.parent = m_open.constLast();
        m_open.constLast()->children.append(&element);
    }
    m_open.append(&element);
}

void PxSourceDocument::readNode(const QXmlStreamReader &reader, int begin, int end)
{
    PxSourceNode node;
    node.isText = reader.isCharacters();
    node.text = reader.text().toString();
    if (node.isText && reader.isWhitespace())
        return;
    if (node.isText && m_text.at(end - 1) == QLatin1Char('<'))
        --end;
    while (m_text.at(begin).isSpace())
        ++begin;
    while (m_text.at(end - 1).isSpace())
        --end;
    node.range = {begin, end};
    if (!m_open.isEmpty())
        m_open.constLast()->nodes.append(node);
    else if (!m_root)
        m_prolog.append(node);
}

/** Which names something can be said about; any other fault is told as the parser tells it. */
void PxSourceDocument::classifyFault(const QXmlStreamReader &reader, int begin)
{
    const int end = qMin(int(reader.characterOffset()), m_text.size());
    const bool isEnd = reader.error() == QXmlStreamReader::PrematureEndOfDocumentError;
    m_fault = isEnd ? Fault::EndMissing : Fault::NotWellFormed;
    m_faultMessage = reader.errorString();
    if (m_faultMessage.endsWith(QLatin1Char('.')))
        m_faultMessage.chop(1);
    m_faultMessage.replace(0, 1, m_faultMessage.left(1).toLower());
    m_faultRange = {isEnd ? end : qMax(0, end - 1), end};
    if (!isEnd && !findUndeclaredEntity(end) && !findWrongEndTag(begin, end))
        findSecondAttribute(begin, end);
}

/** The reader stops behind an entity that it does not know. */
bool PxSourceDocument::findUndeclaredEntity(int end)
{
    constexpr int maximumLength = 256;
    const int windowBegin = qMax(0, end - maximumLength);
    const QStringView window = QStringView(m_text).mid(windowBegin, end - windowBegin);
    const int entity = int(window.lastIndexOf(QLatin1Char('&')));
    if (entity < 0 || !window.endsWith(QLatin1Char(';')))
        return false;
    const QString name = window.mid(entity + 1).chopped(1).toString();
    static const QSet<QString> ourOwnNames{QStringLiteral("amp"), QStringLiteral("lt"),
                                           QStringLiteral("gt"), QStringLiteral("quot"),
                                           QStringLiteral("apos")};
    if (name.isEmpty() || name.startsWith(QLatin1Char('#')) || ourOwnNames.contains(name) ||
        std::any_of(name.begin(), name.end(), [](QChar c) { return c.isSpace(); }))
        return false;
    m_fault = Fault::EntityUndeclared;
    m_faultRange = {windowBegin + entity, end};
    return true;
}

bool PxSourceDocument::findWrongEndTag(int begin, int end)
{
    const int tag = m_text.indexOf(QLatin1String("</"), begin);
    if (m_open.isEmpty() || tag < 0 || tag >= end)
        return false;
    const QStringView name = QStringView(m_text).mid(tag + 2, end - tag - 2);
    if (name.startsWith(m_open.constLast()->name))
        return false;
    m_fault = Fault::EndTagWrong;
    m_faultMessage = QStringLiteral("expected \"</%1>\" here").arg(m_open.constLast()->name);
    m_faultRange = {tag, end};
    return true;
}

void PxSourceDocument::findSecondAttribute(int begin, int end)
{
    begin = m_text.indexOf(QLatin1Char('<'), begin);
    if (begin < 0 || begin >= end)
        return;
    QSet<QString> names;
    const PxStartTagScanner tag(QStringView(m_text).mid(begin, end - begin), begin);
    for (const PxSourceAttribute &attribute : tag.attributes()) {
        if (names.contains(attribute.name)) {
            m_fault = Fault::AttributeTwice;
            m_faultRange = attribute.nameRange;
            return;
        }
        names.insert(attribute.name);
    }
}

bool PxSourceDocument::connectTo(const QDomElement &root)
{
    // Both hold the same elements, and here they stand in the order of their start tags.
    QDomElement dom = root;
    for (PxSourceElement &element : m_elements) {
        if (dom.tagName() != element.name)
            return false;
        element.dom = dom;
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

PxPlace PxSourceDocument::place(const PxSourceRange &range) const
{
    const auto [line, column] = lineAndColumn(range.begin);
    const auto [endLine, endColumn] = lineAndColumn(range.end);
    return {QString(), line, column, endLine, endColumn};
}

QPair<int, int> PxSourceDocument::lineAndColumn(int index) const
{
    const auto next = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), index);
    const int line = int(next - m_lineStarts.begin());
    const int begin = m_lineStarts.at(line - 1);
    // A character beyond the first plane is two in the text and one to who counts them.
    const auto first = std::lower_bound(m_secondHalves.begin(), m_secondHalves.end(), begin);
    const auto last = std::lower_bound(first, m_secondHalves.end(), index);
    return {line, index - begin - int(last - first) + 1};
}
