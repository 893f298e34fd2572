#include "PxSchemaWriter.h"

#include "PxFormatCells.h"
#include "format/PxFormat.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/** Removes Markdown. A link becomes its text; after "see", it becomes the name of the document. */
QString plain(QString markdown)
{
    static const QRegularExpression ourReference(QStringLiteral("see \\[[^]]*\\]\\([^)]*\\)"));
    static const QRegularExpression ourLink(QStringLiteral("\\[([^\\]]*)\\]\\([^)]*\\)"));
    return markdown.replace(ourReference, QStringLiteral("see file-format.md"))
        .replace(ourLink, QStringLiteral("\\1"))
        .remove(QStringLiteral("**"))
        .remove(QLatin1Char('`'));
}

QString plain(const char *markdown)
{
    return plain(QString::fromUtf8(markdown));
}

QString sentence(const char *subject, const QString &text)
{
    return text.isEmpty() ? QString()
                          : QStringLiteral(". %1: %2").arg(QLatin1String(subject), text);
}

} // namespace

PxSchemaWriter::PxSchemaWriter(QIODevice *device) : m_xml(device)
{
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(2);
}

void PxSchemaWriter::write(PxFileKind kind)
{
    m_xml.writeStartDocument();
    m_xml.writeComment(" Written by pxvocabulary: change tools/format, not this file. ");
    m_xml.writeStartElement("xs:schema");
    m_xml.writeAttribute("xmlns:xs", "http://www.w3.org/2001/XMLSchema");
    writeElement(PxFormat::root(kind), false);
    m_types.write(&m_xml);
    m_xml.writeEndDocument();
}

void PxSchemaWriter::writeElement(const PxElementRow &row, bool isOptional)
{
    m_xml.writeStartElement("xs:element");
    m_xml.writeAttribute("name", QString::fromUtf8(row.name));
    if (isOptional)
        m_xml.writeAttribute("minOccurs", "0");
    if (row.text != PxTextKind::None)
        m_xml.writeAttribute("type", m_types.typeOf(row.text));
    writeDocumentation(plain(row.cells.meaning) + sentence("Contents", plain(row.cells.contents)) +
                       sentence("Absent", plain(PxFormatCells::absent(row))));
    if (row.text == PxTextKind::None)
        writeContents(row);
    m_xml.writeEndElement();
}

void PxSchemaWriter::writeContents(const PxElementRow &row)
{
    m_xml.writeStartElement("xs:complexType");
    if (!row.children.isEmpty()) {
        // A schema cannot allow any order if some elements may be repeated and others may not.
        const bool areSingle =
            std::all_of(row.children.begin(), row.children.end(), [](const PxElementRow &child) {
                return child.occurrence == PxOccurrence::First;
            });
        m_xml.writeStartElement(areSingle ? "xs:all" : "xs:choice");
        m_xml.writeAttribute("minOccurs", "0");
        if (!areSingle)
            m_xml.writeAttribute("maxOccurs", "unbounded");
        for (const PxElementRow &child : row.children)
            writeElement(child, areSingle);
        m_xml.writeEndElement();
    }
    QString subject;
    QString meaning;
    for (const PxAttributeRow &attribute : row.attributes) {
        if (attribute.cells.meaning)
            meaning = plain(attribute.cells.meaning);
        if (meaning.startsWith(QChar(0x2026))) // "…" continues an earlier meaning
            meaning.replace(0, 1, subject);
        else
            subject = meaning;
        writeAttribute(attribute, meaning);
    }
    m_xml.writeEndElement();
}

void PxSchemaWriter::writeAttribute(const PxAttributeRow &row, const QString &meaning)
{
    const QString types = m_types.typesOf(row);
    const bool isUnion = types.contains(QLatin1Char(' '));
    m_xml.writeStartElement("xs:attribute");
    m_xml.writeAttribute("name", QString::fromUtf8(row.name));
    if (!isUnion)
        m_xml.writeAttribute("type", types);
    if (row.defaultText && *row.defaultText)
        m_xml.writeAttribute("default", QString::fromUtf8(row.defaultText));
    writeDocumentation(meaning + sentence("Type", plain(PxFormatCells::type(row))) +
                       sentence("Absent or unreadable", plain(PxFormatCells::absent(row))));
    if (isUnion) {
        m_xml.writeStartElement("xs:simpleType");
        m_xml.writeEmptyElement("xs:union");
        m_xml.writeAttribute("memberTypes", types);
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

void PxSchemaWriter::writeDocumentation(const QString &text)
{
    m_xml.writeStartElement("xs:annotation");
    m_xml.writeTextElement("xs:documentation", text);
    m_xml.writeEndElement();
}
