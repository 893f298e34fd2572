#include "writing/PxMarkup.h"

#include "writing/PxVisibleText.h"

#include <algorithm>

namespace {

/** What stands for the character; null for itself. */
const char *referenceOf(QChar unit, bool isAttribute)
{
    switch (unit.unicode()) {
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '&':
        return "&amp;";
    case '"':
        return "&quot;";
    case '\t':
        return isAttribute ? "&#9;" : nullptr;
    case '\n':
        return isAttribute ? "&#10;" : nullptr;
    case '\r':
        return isAttribute ? "&#13;" : nullptr;
    default:
        return nullptr;
    }
}

/** The text with U+FFFD for what no XML file can hold, escaped or not. */
QString holdable(const QString &text)
{
    QString held = text;
    for (int i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            ++i;
            continue;
        }
        const bool isControl = unit < ' ' && unit != '\t' && unit != '\n' && unit != '\r';
        if (isControl || unit.isSurrogate() || unit.unicode() >= 0xFFFE)
            held[i] = QChar::ReplacementCharacter;
    }
    return held;
}

bool isPlain(QChar unit)
{
    const ushort code = unit.unicode();
    return code >= ' ' && code < 0x7F && code != '<' && code != '>' && code != '&' && code != '"';
}

} // namespace

void PxMarkup::open(const char *name)
{
    endTag();
    if (!m_wasTextWritten)
        beginLine();
    m_bytes += '<';
    m_bytes += name;
    m_open.append(name);
    m_isInTag = true;
    m_wasTextWritten = false;
}

void PxMarkup::close()
{
    const char *name = m_open.takeLast();
    if (m_isInTag) {
        m_bytes += "/>";
        m_isInTag = false;
        return;
    }
    if (!m_wasTextWritten)
        beginLine();
    m_bytes += "</";
    m_bytes += name;
    m_bytes += '>';
    m_wasTextWritten = false;
}

void PxMarkup::attribute(const char *name, const QString &value)
{
    beginAttribute(name);
    appendEscaped(value, true);
    m_bytes += '"';
}

void PxMarkup::plainAttribute(const char *name, QLatin1String value)
{
    beginAttribute(name);
    append(value);
    m_bytes += '"';
}

void PxMarkup::text(const QString &text)
{
    endTag();
    appendEscaped(text, false);
    m_wasTextWritten = true;
}

void PxMarkup::plainText(QLatin1String text)
{
    endTag();
    append(text);
    m_wasTextWritten = true;
}

void PxMarkup::beginAttribute(const char *name)
{
    m_bytes += ' ';
    m_bytes += name;
    m_bytes += "=\"";
}

void PxMarkup::appendEscaped(const QString &text, bool isAttribute)
{
    if (appendPlain(text)) // as nearly all are
        return;
    const QString visible = m_kind == Kind::Page ? PxVisibleText::line(text) : holdable(text);
    int from = 0;
    for (int i = 0; i < visible.size(); ++i) {
        const char *reference = referenceOf(visible[i], isAttribute);
        if (!reference)
            continue;
        appendVisible(visible.midRef(from, i - from));
        m_bytes += reference;
        from = i + 1;
    }
    appendVisible(visible.midRef(from));
}

/** Of a text in which no markup is left. */
void PxMarkup::appendVisible(const QStringRef &text)
{
    const QByteArray bytes = text.toUtf8();
    m_bytes += (m_kind == Kind::Page ? bytes : PxVisibleText::xml(bytes).toUtf8()).toStdString();
}

bool PxMarkup::appendPlain(const QString &text)
{
    if (!std::all_of(text.begin(), text.end(), isPlain))
        return false;
    const std::size_t size = m_bytes.size();
    m_bytes.resize(size + std::size_t(text.size()));
    std::transform(text.begin(), text.end(), &m_bytes[size],
                   [](QChar unit) { return char(unit.unicode()); });
    return true;
}

void PxMarkup::beginLine()
{
    if (m_kind == Kind::Page)
        return;
    m_bytes += '\n';
    m_bytes.append(std::size_t(m_open.size()), ' ');
}

void PxMarkup::endTag()
{
    if (m_isInTag)
        m_bytes += '>';
    m_isInTag = false;
}
