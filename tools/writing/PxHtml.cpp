#include "writing/PxHtml.h"

#include "writing/PxVisibleText.h"

#include <algorithm>
#include <iterator>

namespace {

bool isMarkup(QChar unit)
{
    return unit == '<' || unit == '>' || unit == '&' || unit == '"';
}

/** Whether it is written as it is, in one byte. */
bool isPlain(QChar unit)
{
    return unit >= ' ' && unit < QChar(0x7F) && !isMarkup(unit);
}

} // namespace

void PxHtml::open(const char *name, const Attributes &attributes)
{
    openTag(name, attributes);
    m_open.emplace_back(name);
}

void PxHtml::attribute(std::string_view name, const QString &value)
{
    beginAttribute(name);
    append(value);
    m_text += '"';
}

void PxHtml::plainAttribute(std::string_view name, std::string_view value)
{
    beginAttribute(name);
    m_text += value;
    m_text += '"';
}

void PxHtml::close()
{
    finishTag();
    m_text += "</";
    m_text += m_open.back();
    m_text += '>';
    m_open.pop_back();
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
    m_text += "/>";
    m_isInTag = false;
}

QByteArray PxHtml::document() const
{
    return QByteArray::fromStdString(m_text) + '\n';
}

void PxHtml::openTag(const char *name, const Attributes &attributes)
{
    finishTag();
    m_text += '<';
    m_text += name;
    m_isInTag = true;
    for (const Attribute &attribute : attributes) {
        if (attribute.plain)
            plainAttribute(attribute.name, attribute.plain);
        else if (!attribute.value.isNull())
            this->attribute(attribute.name, attribute.value);
    }
}

void PxHtml::beginAttribute(std::string_view name)
{
    m_text += ' ';
    m_text += name;
    m_text += "=\"";
}

void PxHtml::finishTag()
{
    if (m_isInTag)
        m_text += '>';
    m_isInTag = false;
}

void PxHtml::append(const QString &text)
{
    if (std::all_of(text.begin(), text.end(), isPlain)) { // as nearly all texts are
        std::transform(text.begin(), text.end(), std::back_inserter(m_text),
                       [](QChar unit) { return char(unit.unicode()); });
        return;
    }
    const QString visible = PxVisibleText::line(text);
    const bool isEscaped = std::any_of(visible.begin(), visible.end(), isMarkup);
    m_text += (isEscaped ? visible.toHtmlEscaped() : visible).toStdString();
}
