#include "check/PxTextParts.h"

#include <PxListParts.h>

namespace {

/** Goes through the text of an element as it is written and tells which characters it stands for.
 */
class TextScanner
{
public:
    TextScanner(const QString &source, const PxSourceRange &range)
        : m_source(source)
        , m_position(range.begin)
        , m_end(range.end)
    {
        while (m_position < m_end)
            readNext();
    }

    QString text() const { return m_text; }
    /** The place of each character of the text. */
    const QVector<PxSourceRange> &places() const { return m_places; }

private:
    bool isAt(const char *mark) const
    {
        return QStringView(m_source).mid(m_position).startsWith(QLatin1String(mark));
    }
    int behind(const char *mark) const
    {
        const QLatin1String text(mark);
        const int found = m_source.indexOf(text, m_position);
        return found < 0 || found + text.size() > m_end ? m_end : found + text.size();
    }
    void add(QStringView text, int end)
    {
        for (const QChar character : text) {
            m_text.append(character);
            m_places.append({m_position, end});
        }
        m_position = end;
    }

    void readNext();
    void readCharacterData();
    void readReference();

    const QString &m_source;
    int m_position;
    int m_end;
    QString m_text;
    QVector<PxSourceRange> m_places;
};

void TextScanner::readNext()
{
    if (isAt("<!--"))
        m_position = behind("-->");
    else if (isAt("<![CDATA["))
        readCharacterData();
    else if (isAt("<"))
        m_position = behind(">");
    else if (isAt("&"))
        readReference();
    else
        add(QStringView(m_source).mid(m_position, 1), m_position + 1);
}

void TextScanner::readCharacterData()
{
    const int end = behind("]]>");
    m_position += int(qstrlen("<![CDATA["));
    while (m_position < end - int(qstrlen("]]>")))
        add(QStringView(m_source).mid(m_position, 1), m_position + 1);
    m_position = end;
}

void TextScanner::readReference()
{
    const int end = behind(";");
    const QStringView name = QStringView(m_source).mid(m_position + 1, end - m_position - 2);
    constexpr struct
    {
        const char *name;
        char character;
    } entities[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    QString text;
    for (const auto &entity : entities) {
        if (name == QLatin1String(entity.name))
            text = QLatin1Char(entity.character);
    }
    if (name.startsWith(QLatin1Char('#'))) {
        const bool isHexadecimal = name.mid(1).startsWith(QLatin1Char('x'));
        const uint code =
            isHexadecimal ? name.mid(2).toUInt(nullptr, 16) : name.mid(1).toUInt(nullptr, 10);
        text = QString::fromUcs4(&code, 1);
    }
    add(text, end);
}

/** The parts of the scanned text, each with the characters that it consists of. */
QVector<PxTextPart> locatedParts(const TextScanner &scanner, const PxSourceRange &all)
{
    QVector<PxTextPart> parts;
    const QString text = scanner.text();
    pxForEachPart(text, [&](QStringView part) {
        const QStringView trimmed = part.trimmed();
        const int first = int(trimmed.begin() - QStringView(text).begin());
        const int begin = int(part.begin() - QStringView(text).begin());
        if (trimmed.isEmpty()) {
            const int place = begin == 0 ? all.begin : scanner.places().at(begin - 1).end;
            parts.append({QString(), {place, place}});
            return;
        }
        parts.append({trimmed.toString(),
                      {scanner.places().at(first).begin,
                       scanner.places().at(first + int(trimmed.size()) - 1).end}});
    });
    return parts;
}

} // namespace

PxTextParts::PxTextParts(const QString &source, const PxSourceElement &element)
{
    const PxSourceRange all = element.textRange();
    const QString text = element.dom.text();
    pxForEachPart(text, [&](QStringView part) {
        m_parts.append({part.trimmed().toString(), all});
    });
    // A list without any text has no place but its element's.
    if (text.trimmed().isEmpty())
        return;
    const QVector<PxTextPart> located = locatedParts(TextScanner(source, all), all);
    if (located.size() != m_parts.size())
        return;
    for (int i = 0; i < m_parts.size(); ++i) {
        if (m_parts.at(i).text == located.at(i).text)
            m_parts[i].range = located.at(i).range;
    }
}
