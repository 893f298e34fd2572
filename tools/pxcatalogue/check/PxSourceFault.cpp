#include "check/PxSourceFault.h"

#include "check/PxStartTagScanner.h"

#include <PxXMLLoader.h>

#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

PxSourceFault::PxSourceFault(const QString &text) : m_text(text)
{
    QXmlStreamReader reader(m_text);
    reader.setNamespaceProcessing(false);
    int begin = 0;
    while (!reader.atEnd() && m_open.size() <= PxXMLLoader::maximumDepth) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement)
            open(reader.qualifiedName().toString(), begin);
        else if (token == QXmlStreamReader::EndElement)
            m_open.removeLast();
        else if (token == QXmlStreamReader::Invalid)
            classify(reader, begin);
        begin = nextBegin(token, int(reader.characterOffset()));
    }
}

void PxSourceFault::open(const QString &name, int begin)
{
    // Behind blanks outside the document element.
    const int nameBegin = m_text.indexOf(QLatin1Char('<'), begin) + 1;
    m_open.append({name, {nameBegin, nameBegin + name.size()}});
}

/** Where the next token begins: the reader takes more than a token to know that it has ended. */
int PxSourceFault::nextBegin(QXmlStreamReader::TokenType token, int end) const
{
    if (token == QXmlStreamReader::StartDocument && !m_text.startsWith(QLatin1String("<?xml")))
        return 0;
    const bool hasTakenBracket =
        token == QXmlStreamReader::Characters && end > 0 && m_text.at(end - 1) == QLatin1Char('<');
    return hasTakenBracket ? end - 1 : end;
}

/** Which names something can be said about; any other fault is told as the parser tells it. */
void PxSourceFault::classify(const QXmlStreamReader &reader, int begin)
{
    const int end = qMin(int(reader.characterOffset()), m_text.size());
    const bool isEnd = reader.error() == QXmlStreamReader::PrematureEndOfDocumentError;
    m_kind = isEnd ? Kind::EndMissing : Kind::NotWellFormed;
    m_message = reader.errorString();
    if (m_message.endsWith(QLatin1Char('.')))
        m_message.chop(1);
    m_message.replace(0, 1, m_message.left(1).toLower());
    m_range = {isEnd ? end : qMax(0, end - 1), end};
    if (!isEnd && !findUndeclaredEntity(end) && !findWrongEndTag(begin, end))
        findSecondAttribute(begin, end);
}

/** The reader stops behind an entity that it does not know. */
bool PxSourceFault::findUndeclaredEntity(int end)
{
    constexpr int maximumLength = 256;
    const int windowBegin = qMax(0, end - maximumLength);
    const QStringView window = QStringView(m_text).mid(windowBegin, end - windowBegin);
    const int entity = int(window.lastIndexOf(QLatin1Char('&')));
    if (entity < 0 || !window.endsWith(QLatin1Char(';')))
        return false;
    const QString name = window.mid(entity + 1).chopped(1).toString();
    static const QSet<QString> ourOwnNames{QStringLiteral("amp"), QStringLiteral("lt"),
                                           QStringLiteral("gt"), QStringLiteral("quot"),
                                           QStringLiteral("apos")};
    if (name.isEmpty() || name.startsWith(QLatin1Char('#')) || ourOwnNames.contains(name) ||
        std::any_of(name.begin(), name.end(), [](QChar c) { return c.isSpace(); }))
        return false;
    m_kind = Kind::EntityUndeclared;
    m_range = {windowBegin + entity, end};
    return true;
}

bool PxSourceFault::findWrongEndTag(int begin, int end)
{
    const int tag = m_text.indexOf(QLatin1String("</"), begin);
    if (m_open.isEmpty() || tag < 0 || tag >= end)
        return false;
    const QStringView name = QStringView(m_text).mid(tag + 2, end - tag - 2);
    if (name.startsWith(m_open.constLast().name))
        return false;
    m_kind = Kind::EndTagWrong;
    m_message = QStringLiteral("expected \"</%1>\" here").arg(m_open.constLast().name);
    m_range = {tag, end};
    return true;
}

void PxSourceFault::findSecondAttribute(int begin, int end)
{
    begin = m_text.indexOf(QLatin1Char('<'), begin);
    if (begin < 0 || begin >= end)
        return;
    QSet<QString> names;
    const PxStartTagScanner tag(QStringView(m_text).mid(begin, end - begin), begin);
    for (const PxSourceAttribute &attribute : tag.attributes()) {
        if (names.contains(attribute.name)) {
            m_kind = Kind::AttributeTwice;
            m_range = attribute.nameRange;
            return;
        }
        names.insert(attribute.name);
    }
}
