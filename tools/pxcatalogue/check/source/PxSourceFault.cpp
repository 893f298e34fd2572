#include "check/source/PxSourceFault.h"

#include "check/source/PxParserWords.h"
#include "check/source/PxStartTagScanner.h"
#include "check/words/PxSpelling.h"

#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>
#include <set>

PxSourceFault::PxSourceFault(const QString &text) : m_text(text)
{
    QXmlStreamReader reader(m_text);
    reader.setNamespaceProcessing(false);
    int begin = 0;
    while (!reader.atEnd()) {
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
    // Outside the document element, blanks may come first.
    const int nameBegin = m_text.indexOf(QLatin1Char('<'), begin) + 1;
    m_open.append({name, {nameBegin, nameBegin + name.size()}});
}

/** Where the next token begins. After a text, the reader has already consumed the "<" behind it. */
int PxSourceFault::nextBegin(QXmlStreamReader::TokenType token, int end) const
{
    if (token == QXmlStreamReader::StartDocument && !m_text.startsWith(QLatin1String("<?xml")))
        return 0;
    const bool hasTakenBracket =
        token == QXmlStreamReader::Characters && end > 0 && m_text.at(end - 1) == QLatin1Char('<');
    return hasTakenBracket ? end - 1 : end;
}

/** Finds a better message than the parser's; keeps the parser's if there is none. */
void PxSourceFault::classify(const QXmlStreamReader &reader, int begin)
{
    const int end = qMin(int(reader.characterOffset()), m_text.size());
    const bool isEnd = reader.error() == QXmlStreamReader::PrematureEndOfDocumentError;
    m_kind = isEnd ? Kind::EndMissing : Kind::NotWellFormed;
    m_message = reader.errorString();
    if (m_message.endsWith(QLatin1Char('.')))
        m_message.chop(1);
    if (!m_message.startsWith(QLatin1String("XML")))
        m_message.replace(0, 1, m_message.left(1).toLower());
    m_range = {isEnd ? end : qMax(0, end - 1), end};
    m_isUnclosed = isEnd && !m_open.isEmpty();
    if (isEnd)
        findMarkupWithoutEnd(begin);
    else if (!findUndeclaredEntity(end) && !findWrongEndTag(begin, end) &&
             !findLateDeclaration(begin, end) && !findSecondAttribute(begin, end))
        findUnfinishedTag(begin, end);
    const PxParserWords words(m_text.left(end), begin);
    if (m_kind == Kind::NotWellFormed && !words.message().isEmpty()) {
        m_message = words.message();
        m_hint = words.hint();
        m_range = words.range();
    }
}

/** The reader stops behind the name of an unknown entity. */
bool PxSourceFault::findUndeclaredEntity(int end)
{
    constexpr int maximumLength = 256;
    const int windowBegin = qMax(0, end - maximumLength);
    const QStringView window = QStringView(m_text).mid(windowBegin, end - windowBegin);
    const int entity = int(window.lastIndexOf(QLatin1Char('&')));
    if (entity < 0 || !window.endsWith(QLatin1Char(';')))
        return false;
    const QString name = window.mid(entity + 1).chopped(1).toString();
    static const QSet<QString> ourOwnNames{"amp", "lt", "gt", "quot", "apos"};
    if (name.isEmpty() || name.startsWith(QLatin1Char('#')) || ourOwnNames.contains(name) ||
        std::any_of(name.begin(), name.end(), [](QChar c) { return c.isSpace(); }))
        return false;
    m_kind = Kind::EntityUndeclared;
    m_range = {windowBegin + entity, end};
    return true;
}

/** Examines only the tag where the reader stopped: text that looks like a tag need not be one. */
bool PxSourceFault::findWrongEndTag(int begin, int end)
{
    static const QRegularExpression ourEndTag("\\G</([^\\s<>/]{1,256})");
    const QRegularExpressionMatch tag = ourEndTag.match(m_text, begin);
    if (m_open.isEmpty() || !tag.hasMatch() || tag.captured(1) == m_open.constLast().name)
        return false;
    const QString expected = m_open.constLast().name;
    const QString name = tag.captured(1);
    m_kind = Kind::EndTagWrong;
    m_message = QString("expected \"</%1>\" here").arg(expected);
    m_range = {begin, end};
    m_isUnclosed = std::any_of(m_open.begin(), m_open.end(),
                               [&](const Element &element) { return element.name == name; });
    if (m_isUnclosed)
        return true;
    const QString meant = PxSpelling::nearest(name, {expected});
    if (meant.isEmpty())
        m_message = QString("no element \"%1\" is open here").arg(name);
    m_hint = meant.isEmpty()
                 ? "take the tag out, or open the element before it"
                 : PxSpelling::didYouMean(QLatin1String("</") + meant + QLatin1Char('>'));
    return true;
}

bool PxSourceFault::findLateDeclaration(int begin, int end)
{
    const int declaration = m_text.indexOf(QLatin1String("<?xml "), begin);
    const bool isInPlace = begin == 0 && declaration == 0;
    if (isInPlace || declaration < 0 || declaration >= end)
        return false;
    m_range = {declaration, declaration + int(qstrlen("<?xml"))};
    m_hint = "take out what stands before it, blanks and empty lines, too";
    return true;
}

bool PxSourceFault::findSecondAttribute(int begin, int end)
{
    begin = m_text.indexOf(QLatin1Char('<'), begin);
    if (begin < 0 || begin >= end)
        return false;
    std::set<QString> names; // no hash: names can be made to collide
    const PxStartTagScanner tag(QStringView(m_text).mid(begin, end - begin), begin);
    for (const PxSourceAttribute &attribute : tag.attributes()) {
        if (!names.insert(attribute.name).second) {
            m_kind = Kind::AttributeTwice;
            m_range = attribute.nameRange;
            return true;
        }
    }
    return false;
}

/** Another tag begins inside a start tag, so a quote or a ">" of the start tag is missing. */
void PxSourceFault::findUnfinishedTag(int begin, int end)
{
    static const QRegularExpression ourTag("\\G<([^\\s<>/!?\"'=]+)");
    const QRegularExpressionMatch tag = ourTag.match(m_text, begin);
    if (!tag.hasMatch() || m_text.at(end - 1) != QLatin1Char('<') || end - 1 == begin)
        return;
    int quote = -1; // where an open quote begins
    for (int i = begin; i < end - 1; ++i) {
        const QChar next = m_text.at(i);
        if (quote >= 0 && next == m_text.at(quote))
            quote = -1;
        else if (quote < 0 && (next == QLatin1Char('"') || next == QLatin1Char('\'')))
            quote = i;
    }
    if (quote < 0) {
        m_message = QString("the tag of \"%1\" has no \">\" before this").arg(tag.captured(1));
        m_hint = "end the tag before the next one begins";
    } else if (QStringView(m_text).mid(quote, end - quote).contains(QLatin1Char('>'))) {
        m_message = "the quote that begins here has no end";
        m_hint = "end the value with the quote that it begins with";
        m_range = {quote, quote + 1};
    } else {
        m_message = "\"<\" in the value of an attribute";
        m_hint = "write \"&lt;\"";
    }
}

/** The text ends inside a comment or other markup, not between tags. */
void PxSourceFault::findMarkupWithoutEnd(int begin)
{
    constexpr struct
    {
        const char *begin;
        const char *name;
        const char *end;
    } rows[] = {
        {"<!--", "comment", "-->"},
        {"<![CDATA[", "CDATA section", "]]>"},
        {"<?", "processing instruction", "?>"},
        {"<", "tag", ">"},
    };
    while (begin < m_text.size() && m_text.at(begin).isSpace())
        ++begin;
    for (const auto &row : rows) {
        const QLatin1String mark(row.begin);
        if (!QStringView(m_text).mid(begin).startsWith(mark))
            continue;
        m_isUnclosed = false;
        m_range = {begin, begin + mark.size()};
        m_message = QString("this %1 has no end").arg(QLatin1String(row.name));
        // The tag has a ">", so that must be inside a value without an end.
        const bool isInValue = mark.size() == 1 && m_text.indexOf(QLatin1Char('>'), begin) >= 0 &&
                               m_text.at(begin + 1) != QLatin1Char('!');
        m_hint = isInValue ? "end the value with the quote that it begins with"
                           : QString("end it with \"%1\"").arg(QLatin1String(row.end));
        return;
    }
}
