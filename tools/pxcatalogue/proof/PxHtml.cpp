#include "proof/PxHtml.h"

void PxHtml::open(const char *name, const Attributes &attributes)
{
    m_html.open(name);
    writeAttributes(attributes);
}

void PxHtml::close()
{
    m_html.plainText(QLatin1String()); // so that an empty element gets an end tag, too
    m_html.close();
}

void PxHtml::text(const QString &text)
{
    m_html.text(text);
}

void PxHtml::element(const char *name, const QString &text, const Attributes &attributes)
{
    open(name, attributes);
    this->text(text);
    m_html.close();
}

void PxHtml::single(const char *name, const Attributes &attributes)
{
    m_html.open(name);
    writeAttributes(attributes);
    m_html.close();
}

QByteArray PxHtml::document() const
{
    return "<!DOCTYPE html>\n" + m_html.bytes() + '\n';
}

void PxHtml::writeAttributes(const Attributes &attributes)
{
    for (const Attribute &attribute : attributes) {
        if (attribute.word)
            m_html.plainAttribute(attribute.name, QLatin1String(attribute.word));
        else if (!attribute.value.isNull())
            m_html.attribute(attribute.name, attribute.value);
    }
}
