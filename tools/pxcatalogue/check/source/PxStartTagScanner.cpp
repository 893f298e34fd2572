#include "check/source/PxStartTagScanner.h"

namespace {

bool endsName(QChar character)
{
    return character.isSpace() || character == QLatin1Char('=') || character == QLatin1Char('>') ||
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
    while (m_position < m_tag.size() && m_tag[m_position].isSpace())
        ++m_position;
}

PxSourceRange PxStartTagScanner::readName()
{
    const int begin = m_position;
    while (m_position < m_tag.size() && !endsName(m_tag[m_position]))
        ++m_position;
    return {m_offset + begin, m_offset + m_position};
}

bool PxStartTagScanner::readAttribute()
{
    skipBlanks();
    PxSourceAttribute attribute;
    attribute.nameRange = readName();
    attribute.name = m_tag.mid(attribute.nameRange.begin - m_offset)
                         .left(attribute.nameRange.end - attribute.nameRange.begin)
                         .toString();
    skipBlanks();
    if (attribute.name.isEmpty() || m_position >= m_tag.size() ||
        m_tag[m_position] != QLatin1Char('='))
        return false;
    ++m_position;
    skipBlanks();
    if (m_position >= m_tag.size())
        return false;
    const QChar quote = m_tag[m_position];
    const int end = int(m_tag.indexOf(quote, m_position + 1));
    if ((quote != QLatin1Char('"') && quote != QLatin1Char('\'')) || end < 0)
        return false;
    attribute.valueRange = {m_offset + m_position + 1, m_offset + end};
    m_attributes.append(attribute);
    m_position = end + 1;
    return true;
}
