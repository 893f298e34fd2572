#include "check/source/PxStartTagScanner.h"

namespace {

/** A no-break space and other blanks of Unicode belong to names. */
bool isBlank(QChar character)
{
    return character == QLatin1Char(' ') || character == QLatin1Char('\n') ||
           character == QLatin1Char('\r') || character == QLatin1Char('\t');
}

bool endsName(QChar character)
{
    return isBlank(character) || character == QLatin1Char('=') || character == QLatin1Char('>') ||
           character == QLatin1Char('/') || character == QLatin1Char('<');
}

} // namespace

PxStartTagScanner::PxStartTagScanner(QStringView tag, int offset) : m_tag(tag), m_offset(offset)
{
    m_nameRange = readName();
    while (readAttribute())
        ;
}

void PxStartTagScanner::skipBlanks()
{
    while (m_position < m_tag.size() && isBlank(m_tag[m_position]))
        ++m_position;
}

PxSourceRange PxStartTagScanner::readName()
{
    const int begin = m_position;
    while (m_position < m_tag.size() && !endsName(m_tag[m_position]))
        ++m_position;
    return {m_offset + begin, m_offset + m_position};
}

/** Returns whether there is another attribute and it is complete. */
bool PxStartTagScanner::readAttribute()
{
    const int end = m_position; // of the previous value
    skipBlanks();
    const bool hasBlank = m_position > end;
    PxSourceAttribute attribute;
    attribute.nameRange = readName();
    attribute.name = m_tag.mid(attribute.nameRange.begin - m_offset)
                         .left(attribute.nameRange.end - attribute.nameRange.begin)
                         .toString();
    if (attribute.name.isEmpty())
        return false;
    if (!hasBlank)
        return lacks(Lack::Blank);
    skipBlanks();
    if (m_position >= m_tag.size() || m_tag[m_position] != '=')
        return lacks(Lack::EqualSign);
    ++m_position;
    skipBlanks();
    const QChar quote = m_position < m_tag.size() ? m_tag[m_position] : QChar();
    if (quote != '"' && quote != '\'')
        return lacks(Lack::Quote);
    const int valueEnd = int(m_tag.indexOf(quote, m_position + 1));
    if (valueEnd < 0)
        return lacks(Lack::EndOfValue);
    attribute.valueRange = {m_offset + m_position + 1, m_offset + valueEnd};
    m_attributes.append(attribute);
    m_position = valueEnd + 1;
    return true;
}

bool PxStartTagScanner::lacks(Lack lack)
{
    m_lack = lack;
    return false;
}
