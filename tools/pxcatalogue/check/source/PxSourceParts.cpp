#include "check/source/PxSourceParts.h"

#include "check/PxCheckLimits.h"

#include <PxListParts.h>

namespace {

/** Scans the source text of a list and finds the place of each part. */
class ListScanner
{
public:
    ListScanner(const QString &source, const PxSourceRange &list)
        : m_source(source)
        , m_position(list.begin)
        , m_end(list.end)
    {
        open(m_position);
        while (m_position < m_end)
            readNext();
        if (isKept())
            m_list.parts.last().whole.end = m_end;
    }

    /** The parts, without their texts. */
    PxSourceList list() const { return m_list; }

private:
    bool isAt(const char *mark) const
    {
        return QStringView(m_source).mid(m_position).startsWith(QLatin1String(mark));
    }
    /** The end of markup that begins here with `opening` and ends with `mark`. */
    int behind(const char *opening, const char *mark) const
    {
        const QLatin1String text(mark);
        const int found = m_source.indexOf(text, m_position + int(qstrlen(opening)));
        return found < 0 || found + text.size() > m_end ? m_end : found + text.size();
    }
    void open(int begin)
    {
        if (m_list.count++ < PxCheckLimits::listParts)
            m_list.parts.append({QString(), {begin, begin}, {begin, begin}});
    }
    /** Whether the last part is kept, not only counted. */
    bool isKept() const { return m_list.isWhole(); }

    void readNext();
    void readCharacterData();
    void readReference();
    void add(QChar character, int end);

    const QString &m_source;
    int m_position;
    int m_end;
    bool m_isBlank = true; // whether the last part has only blanks so far
    PxSourceList m_list;
};

void ListScanner::readNext()
{
    const QChar next = m_source.at(m_position);
    if (next == QLatin1Char('&'))
        readReference();
    else if (next != QLatin1Char('<'))
        add(next, m_position + 1);
    else if (isAt("<![CDATA["))
        readCharacterData();
    else
        m_position = isAt("<!--") ? behind("<!--", "-->")
                     : isAt("<?") ? behind("<?", "?>")
                                  : behind("<", ">");
}

void ListScanner::readCharacterData()
{
    const int end = behind("<![CDATA[", "]]>");
    m_position += int(qstrlen("<![CDATA["));
    while (m_position < end - int(qstrlen("]]>")))
        add(m_source.at(m_position), m_position + 1);
    m_position = end;
}

void ListScanner::readReference()
{
    const int end = behind("&", ";");
    const QStringView name = QStringView(m_source).mid(m_position + 1, end - m_position - 2);
    uint code = 'x'; // entities with names are neither commas nor blanks
    if (name.startsWith(QLatin1String("#x")))
        code = name.mid(2).toUInt(nullptr, 16);
    else if (name.startsWith(QLatin1Char('#')))
        code = name.mid(1).toUInt();
    add(code <= 0xffff ? QChar(code) : QLatin1Char('x'), end);
}

/** `end` is where the source text of the character ends. */
void ListScanner::add(QChar character, int end)
{
    PxSourcePart &part = m_list.parts.last();
    if (character == QLatin1Char(',')) {
        if (isKept())
            part.whole.end = m_position;
        m_isBlank = true;
        open(end);
    } else if (!character.isSpace() && isKept()) {
        if (m_isBlank)
            part.range.begin = m_position;
        m_isBlank = false;
        part.range.end = end;
    }
    m_position = end;
}

/** `value` is what the library reads from the source text in `range`. */
PxSourceList split(const PxCheckedFile &file, const PxSourceRange &range, const QString &value)
{
    const QString source = file.source().text();
    PxSourceList list = ListScanner(source, range).list();
    const int count = value.count(QLatin1Char(',')) + 1;
    if (list.count != count) {
        const PxSourcePart whole{QString(), range, range};
        list = {QVector<PxSourcePart>(qMin(count, PxCheckLimits::listParts), whole), count};
    }
    auto part = list.parts.begin();
    pxForEachPart(value, [&](QStringView text) {
        if (part != list.parts.end())
            (part++)->text = text.toString();
    });
    return list;
}

} // namespace

PxSourceList PxSourceParts::ofAttribute(const PxCheckedFile &file,
                                        const PxSourceAttribute *attribute)
{
    return attribute ? split(file, attribute->valueRange, attribute->value) : PxSourceList();
}

PxSourceList PxSourceParts::ofText(const PxCheckedFile &file, const PxSourceElement &element)
{
    return split(file, element.textRange(), element.dom.text());
}
