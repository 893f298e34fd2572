#include "writing/PxHtml.h"

#include "writing/PxVisibleText.h"

#include <algorithm>

namespace {

bool isMarkup(QChar unit)
{
    return unit == '<' || unit == '>' || unit == '&' || unit == '"';
}

} // namespace

void PxHtml::open(const char *name, const Attributes &attributes)
{
    openTag(name, attributes);
    m_open.append(QLatin1String(name));
}

void PxHtml::attribute(const char *name, const QString &value)
{
    m_text += ' ';
    m_text += QLatin1String(name);
    m_text += QLatin1String("=\"");
    append(value);
    m_text += '"';
}

void PxHtml::close()
{
    finishTag();
    m_text += QLatin1String("</");
    m_text += m_open.takeLast();
    m_text += '>';
}

void PxHtml::text(const QString &text)
{
    finishTag();
    append(text);
}

void PxHtml::newLine()
{
    finishTag();
    m_text += '\n';
}

void PxHtml::element(const char *name, const QString &text, const Attributes &attributes)
{
    open(name, attributes);
    this->text(text);
    close();
}

void PxHtml::single(const char *name, const Attributes &attributes)
{
    openTag(name, attributes);
    m_text += QLatin1String("/>");
    m_isInTag = false;
}

QByteArray PxHtml::document() const
{
    return m_text.toUtf8() + '\n';
}

void PxHtml::openTag(const char *name, const Attributes &attributes)
{
    finishTag();
    m_text += '<';
    m_text += QLatin1String(name);
    m_isInTag = true;
    for (const Attribute &attribute : attributes) {
        if (!attribute.value.isNull())
            this->attribute(attribute.name, attribute.value);
    }
}

void PxHtml::finishTag()
{
    if (m_isInTag)
        m_text += '>';
    m_isInTag = false;
}

void PxHtml::append(const QString &text)
{
    const QString visible = PxVisibleText::line(text);
    const bool isEscaped = std::any_of(visible.begin(), visible.end(), isMarkup);
    m_text += isEscaped ? visible.toHtmlEscaped() : visible;
}
