#include "proof/PxHtml.h"

#include "writing/PxVisibleText.h"

PxHtml::PxHtml() : m_buffer(&m_bytes)
{
    m_buffer.open(QIODevice::WriteOnly);
    m_xml.setDevice(&m_buffer);
}

void PxHtml::open(const char *name, const Attributes &attributes)
{
    m_xml.writeStartElement(QLatin1String(name));
    writeAttributes(attributes);
}

void PxHtml::close()
{
    m_xml.writeCharacters(QString()); // so that an empty element gets an end tag, too
    m_xml.writeEndElement();
}

void PxHtml::text(const QString &text)
{
    m_xml.writeCharacters(PxVisibleText::line(text));
}

void PxHtml::element(const char *name, const QString &text, const Attributes &attributes)
{
    open(name, attributes);
    this->text(text);
    m_xml.writeEndElement();
}

void PxHtml::single(const char *name, const Attributes &attributes)
{
    m_xml.writeEmptyElement(QLatin1String(name));
    writeAttributes(attributes);
}

QByteArray PxHtml::document() const
{
    return "<!DOCTYPE html>\n" + m_bytes + '\n';
}

void PxHtml::writeAttributes(const Attributes &attributes)
{
    for (const Attribute &attribute : attributes) {
        if (!attribute.value.isNull())
            m_xml.writeAttribute(QLatin1String(attribute.name),
                                 PxVisibleText::line(attribute.value));
    }
}
