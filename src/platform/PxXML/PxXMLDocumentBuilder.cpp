#include "PxXMLDocumentBuilder.h"

#include "PxXMLLoader.h"

#include <QDomImplementation>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

/**
 * Qt's reader does not refuse control characters in document types, nor behind the first character
 * of the name of an attribute.
 */
bool hasControlCharacter(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) {
        const bool isBlank =
            c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
        return (c.category() == QChar::Other_Control && !isBlank) || c >= QChar(0xFFFE);
    });
}

} // namespace

PxXMLDocumentBuilder::PxXMLDocumentBuilder(QXmlStreamReader &reader, bool hasStandalone)
    : m_reader(reader)
    , m_document(QDomDocumentType())
    , m_parent(m_document)
{
    if (!reader.documentVersion().isEmpty())
        addDeclaration(hasStandalone);
}

std::optional<PxXMLFault> PxXMLDocumentBuilder::build()
{
    std::optional<PxXMLFault> found = addToken();
    while (!found && !m_reader.atEnd()) {
        m_reader.readNext();
        found = addToken();
    }
    return found;
}

std::optional<PxXMLFault> PxXMLDocumentBuilder::addToken()
{
    switch (m_reader.tokenType()) {
    case QXmlStreamReader::StartElement:
        return addElement();
    case QXmlStreamReader::EndElement:
        m_parent = m_parent.parentNode();
        --m_depth;
        return std::nullopt;
    case QXmlStreamReader::Characters:
        if (m_reader.isCDATA())
            return add(m_document.createCDATASection(shared(m_reader.text())));
        if (m_reader.text().trimmed().isEmpty())
            return std::nullopt;
        return add(m_document.createTextNode(shared(m_reader.text())));
    case QXmlStreamReader::Comment:
        return add(m_document.createComment(shared(m_reader.text())));
    case QXmlStreamReader::ProcessingInstruction:
        return add(
            m_document.createProcessingInstruction(shared(m_reader.processingInstructionTarget()),
                                                   shared(m_reader.processingInstructionData())));
    case QXmlStreamReader::DTD:
        return addDocumentType();
    case QXmlStreamReader::EntityReference:
        return fault(PxXMLFault::Kind::Limit,
                     QStringLiteral("the entity %1 is declared outside the file, which is not "
                                    "allowed")
                         .arg(m_reader.name()));
    case QXmlStreamReader::Invalid:
        return fault(PxXMLFault::Kind::NotWellFormed, m_reader.errorString());
    case QXmlStreamReader::NoToken:
    case QXmlStreamReader::StartDocument:
    case QXmlStreamReader::EndDocument:
        break;
    }
    return std::nullopt;
}

std::optional<PxXMLFault> PxXMLDocumentBuilder::addElement()
{
    // The time to append a node grows with its depth, and destroying a deep tree takes stack.
    if (++m_depth > PxXMLLoader::maximumDepth)
        return fault(PxXMLFault::Kind::Limit,
                     QStringLiteral("the element is nested %1 deep, no more than %2 are allowed")
                         .arg(m_depth)
                         .arg(PxXMLLoader::maximumDepth));
    QDomElement element = m_document.createElement(shared(m_reader.qualifiedName()));
    const QXmlStreamAttributes attributes = m_reader.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        if (const std::optional<PxXMLFault> tooMany = count())
            return tooMany;
        if (hasControlCharacter(attribute.qualifiedName()))
            return fault(PxXMLFault::Kind::NotWellFormed,
                         QStringLiteral("the name of an attribute has a control character"));
        element.setAttribute(shared(attribute.qualifiedName()), shared(attribute.value()));
    }
    const std::optional<PxXMLFault> found = add(element);
    m_parent = element;
    return found;
}

std::optional<PxXMLFault> PxXMLDocumentBuilder::add(const QDomNode &node)
{
    const std::optional<PxXMLFault> found = count();
    if (!found)
        m_parent.appendChild(node);
    return found;
}

std::optional<PxXMLFault> PxXMLDocumentBuilder::count()
{
    if (++m_nodes <= PxXMLLoader::maximumNodes)
        return std::nullopt;
    return fault(PxXMLFault::Kind::Limit,
                 QStringLiteral("this is node %1 of the file, no more than %2 are allowed")
                     .arg(m_nodes)
                     .arg(PxXMLLoader::maximumNodes));
}

void PxXMLDocumentBuilder::addDeclaration(bool hasStandalone)
{
    QString data = QLatin1String("version='") + m_reader.documentVersion() + QLatin1Char('\'');
    if (!m_reader.documentEncoding().isEmpty())
        data += QLatin1String(" encoding='") + m_reader.documentEncoding() + QLatin1Char('\'');
    if (hasStandalone)
        data += m_reader.isStandaloneDocument() ? QLatin1String(" standalone='yes'")
                                                : QLatin1String(" standalone='no'");
    m_document.appendChild(m_document.createProcessingInstruction(QStringLiteral("xml"), data));
}

std::optional<PxXMLFault> PxXMLDocumentBuilder::addDocumentType()
{
    if (hasControlCharacter(m_reader.text()))
        return fault(PxXMLFault::Kind::NotWellFormed,
                     QStringLiteral("the document type declaration has a control character"));
    // A document gets its type only when it is created, so the nodes that exist so far move to a
    // new document.
    QDomDocument document(QDomImplementation().createDocumentType(
        m_reader.dtdName().toString(), m_reader.dtdPublicId().toString(),
        m_reader.dtdSystemId().toString()));
    while (m_document.hasChildNodes())
        document.appendChild(m_document.firstChild());
    m_document = document;
    m_parent = document;
    return std::nullopt;
}

PxXMLFault PxXMLDocumentBuilder::fault(PxXMLFault::Kind kind, const QString &message) const
{
    return {kind, message, m_reader.lineNumber(), qMax<qint64>(m_reader.columnNumber(), 1)};
}

QString PxXMLDocumentBuilder::shared(QStringView text)
{
    if (text.isEmpty())
        return QLatin1String(""); // not null: an empty attribute is not a missing one
    QString &slot = m_texts[qHash(text) % m_texts.size()];
    if (slot != text)
        slot = text.toString();
    return slot;
}
