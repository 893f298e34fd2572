#include "writing/PxHtml.h"

#include "writing/PxVisibleText.h"

#include <algorithm>

namespace {

bool isMarkup(QChar unit)
{
    return unit == '<' || unit == '>' || unit == '&' || unit == '"';
}

/** Whether it is a visible character of Latin-1, which is written as it is. */
bool isPlain(QChar unit)
{
    constexpr ushort softHyphen = 0xAD;
    const ushort code = unit.unicode();
    return (code >= 0x20 && code < 0x7F && !isMarkup(unit)) ||
           (code > 0xA0 && code <= 0xFF && code != softHyphen);
}

/** Appends a plain text in UTF-8. */
void appendPlain(std::string *text, const QString &plain)
{
    const std::size_t size = text->size();
    text->resize(size + 2 * std::size_t(plain.size())); // as many bytes as it may have
    char *at = text->data() + size;
    for (const QChar unit : plain) {
        const ushort code = unit.unicode();
        if (code >= 0x80)
            *at++ = char(0xC0 | code >> 6);
        *at++ = char(code < 0x80 ? code : 0x80 | (code & 0x3F));
    }
    text->resize(std::size_t(at - text->data()));
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
    QByteArray document;
    document.reserve(int(m_text.size()) + 1);
    document.append(m_text.data(), int(m_text.size()));
    return document += '\n';
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
        appendPlain(&m_text, text);
        return;
    }
    const QString visible = PxVisibleText::line(text);
    const bool isEscaped = std::any_of(visible.begin(), visible.end(), isMarkup);
    m_text += (isEscaped ? visible.toHtmlEscaped() : visible).toStdString();
}
