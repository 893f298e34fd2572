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
    while (!reader.atEnd() && m_kind == Kind::None) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        const int end = qMin(int(reader.characterOffset()), m_text.size());
        if (token == QXmlStreamReader::StartElement)
            findControlCharacterInNames(begin, end);
        else if (token == QXmlStreamReader::DTD)
            findControlCharacter({begin, end});
        if (token == QXmlStreamReader::StartElement)
            open(reader.qualifiedName().toString(), begin);
        else if (token == QXmlStreamReader::EndElement)
            m_open.removeLast();
        else if (token == QXmlStreamReader::Invalid)
            classify(reader.error() == QXmlStreamReader::PrematureEndOfDocumentError, begin, end);
        m_hasDocumentType = m_hasDocumentType || token == QXmlStreamReader::DTD;
        // Without a declaration the document starts before its first token is read.
        const bool isStart = token == QXmlStreamReader::StartDocument;
        begin = isStart && reader.documentVersion().isEmpty() ? 0 : nextBegin(token, end);
    }
}

void PxSourceFault::open(const QString &name, int begin)
{
    // Outside the document element, blanks may come first.
    const int nameBegin = m_text.indexOf(QLatin1Char('<'), begin) + 1;
    m_open.append({name, {nameBegin, nameBegin + name.size()}});
    if (m_root.isEmpty())
        m_root = name;
}

/** Where the next token begins. After a text, the reader has already consumed the "<" behind it. */
int PxSourceFault::nextBegin(QXmlStreamReader::TokenType token, int end) const
{
    const bool hasTakenBracket =
        token == QXmlStreamReader::Characters && end > 0 && m_text.at(end - 1) == QLatin1Char('<');
    return hasTakenBracket ? end - 1 : end;
}

void PxSourceFault::classify(bool isEnd, int begin, int end)
{
    if (findMergeMark(begin, end))
        return;
    if (isEnd) {
        if (!findMarkupWithoutEnd(begin))
            findMissingElement(end);
        return;
    }
    if (findUndeclaredEntity(end) || findWrongEndTag(begin, end) || findSecondAttribute(begin, end))
        return;
    const PxParserWords words(m_text.left(end), begin);
    if (!words.isCertain() &&
        (findLateDeclaration(begin, end) || findLateDocumentType(begin, end) ||
         findContentOutside(begin, end) || findUnfinishedTag(begin, end)))
        return;
    set(Kind::NotWellFormed, words.range(), words.message(), words.hint());
}

void PxSourceFault::set(Kind kind, const PxSourceRange &range, const QString &message,
                        const QString &hint)
{
    m_kind = kind;
    m_range = range;
    m_message = message;
    m_hint = hint;
}

/** The parser accepts control characters in the names of attributes; the library does not. */
void PxSourceFault::findControlCharacterInNames(int begin, int end)
{
    begin = m_text.indexOf(QLatin1Char('<'), begin);
    const PxStartTagScanner tag(QStringView(m_text).mid(begin, end - begin), begin);
    for (const PxSourceAttribute &attribute : tag.attributes())
        findControlCharacter(attribute.nameRange);
}

void PxSourceFault::findControlCharacter(const PxSourceRange &range)
{
    for (int i = range.begin; i < range.end && m_kind == Kind::None; ++i) {
        if (!PxParserWords::isForbidden(m_text.at(i)))
            continue;
        const PxParserWords words(m_text.left(i + 1), range.begin);
        set(Kind::NotWellFormed, words.range(), words.message(), words.hint());
    }
}

/** Programs that merge files leave such lines where both versions differ. */
bool PxSourceFault::findMergeMark(int begin, int end)
{
    static const QRegularExpression ourMark(
        "(?<![^\\r\\n])(?:[<>]{7}(?=\\s|$)|={7}(?=[\\r\\n]|$))");
    constexpr int length = 7;
    if (QStringView(m_text).mid(begin).startsWith(u"<!--"))
        return false; // there such a line may be an ornament
    const QRegularExpressionMatch mark =
        ourMark.match(m_text.left(end + length + 1), qMax(0, begin - length));
    if (!mark.hasMatch())
        return false;
    set(Kind::NotWellFormed, {mark.capturedStart(), mark.capturedEnd()},
        "a line that marks a conflict of two versions of the file",
        "settle the merge conflict: keep one of the versions, and take the marks out");
    return true;
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
    set(Kind::EntityUndeclared, {windowBegin + entity, end},
        QString("the entity \"&%1;\" is not defined").arg(name), "write the character itself");
    return true;
}

/** Examines only the tag where the reader stopped: text that looks like a tag need not be one. */
bool PxSourceFault::findWrongEndTag(int begin, int end)
{
    static const QRegularExpression ourEndTag("\\G\\s*(</([^\\s<>/]{1,256})>?)");
    const QRegularExpressionMatch tag = ourEndTag.match(m_text, begin);
    const QString expected = m_open.isEmpty() ? QString() : m_open.constLast().name;
    const QString name = tag.captured(2);
    if (!tag.hasMatch() || name == expected)
        return false;
    m_isUnclosed = std::any_of(m_open.begin(), m_open.end(),
                               [&](const Element &element) { return element.name == name; });
    const QString meant = PxSpelling::nearest(name, {expected});
    const PxSourceRange range{tag.capturedStart(1), qMax(tag.capturedEnd(1), end)};
    if (m_isUnclosed)
        set(Kind::EndTagWrong, range, QString("expected \"</%1>\" here").arg(expected), QString());
    else if (meant.isEmpty())
        set(Kind::EndTagWrong, range, QString("no element \"%1\" is open here").arg(name),
            "take the tag out, or open the element before it");
    else
        set(Kind::EndTagWrong, range, QString("expected \"</%1>\" here").arg(expected),
            PxSpelling::didYouMean(QLatin1String("</") + meant + QLatin1Char('>')));
    return true;
}

bool PxSourceFault::findLateDeclaration(int begin, int end)
{
    const int declaration = m_text.indexOf(QLatin1String("<?xml "), begin);
    const bool isInPlace = begin == 0 && declaration == 0;
    if (isInPlace || declaration < 0 || declaration >= end)
        return false;
    set(Kind::NotWellFormed, {declaration, declaration + int(qstrlen("<?xml"))},
        "the declaration of XML is not at the beginning of the file",
        "take out what stands before it, blanks and empty lines, too");
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
            set(Kind::AttributeTwice, attribute.nameRange,
                QString("attribute \"%1\" is given twice").arg(attribute.name),
                "keep the one that is meant");
            return true;
        }
    }
    return false;
}

/** The parser stops behind it. */
bool PxSourceFault::findLateDocumentType(int begin, int end)
{
    const QLatin1String mark("<!DOCTYPE");
    begin = m_text.indexOf(QLatin1Char('<'), begin);
    if ((m_root.isEmpty() && !m_hasDocumentType) || begin < 0 || begin >= end ||
        !QStringView(m_text).mid(begin).startsWith(mark))
        return false;
    set(Kind::NotWellFormed, {begin, begin + mark.size()},
        m_root.isEmpty() ? QString("a second document type")
                         : QString("a document type behind the beginning of \"%1\"").arg(m_root),
        "take it out");
    return true;
}

/** Text or an element that is not within the document element. */
bool PxSourceFault::findContentOutside(int begin, int end)
{
    if (!m_open.isEmpty())
        return false;
    while (begin < end - 1 && m_text.at(begin).isSpace())
        ++begin;
    static const QRegularExpression ourTag("\\G<([^\\s<>/!?\"'=]+)");
    const QRegularExpressionMatch tag = ourTag.match(m_text, begin);
    const bool isMarkup = m_text.at(begin) == QLatin1Char('<');
    if (isMarkup && (!tag.hasMatch() || m_root.isEmpty()))
        return false; // a fault in the markup itself
    const int textEnd = m_text.indexOf(QRegularExpression("[\\s<]"), begin + 1);
    const PxSourceRange text{begin, textEnd < 0 ? m_text.size() : textEnd};
    if (tag.hasMatch())
        set(Kind::NotWellFormed, {tag.capturedStart(1), tag.capturedEnd(1)},
            QString("\"%1\" is a second document element, behind \"%2\"")
                .arg(tag.captured(1), m_root),
            QString("move it into \"%1\", or into another file").arg(m_root));
    else if (m_root.isEmpty())
        set(Kind::NotWellFormed, text, "text before the document element", "take it out");
    else
        set(Kind::NotWellFormed, text, QString("text behind the end of \"%1\"").arg(m_root),
            QString("take it out, or move it into \"%1\"").arg(m_root));
    return true;
}

/** Another tag begins inside a start tag, so a quote or a ">" of the start tag is missing. */
bool PxSourceFault::findUnfinishedTag(int begin, int end)
{
    static const QRegularExpression ourTag("\\G<([^\\s<>/!?\"'=]+)");
    const QRegularExpressionMatch tag = ourTag.match(m_text, begin);
    if (!tag.hasMatch() || m_text.at(end - 1) != QLatin1Char('<') || end - 1 == begin)
        return false;
    int quote = -1; // where an open quote begins
    for (int i = begin; i < end - 1; ++i) {
        const QChar next = m_text.at(i);
        if (quote >= 0 && next == m_text.at(quote))
            quote = -1;
        else if (quote < 0 && (next == QLatin1Char('"') || next == QLatin1Char('\'')))
            quote = i;
    }
    const PxSourceRange here{end - 1, end};
    if (quote < 0)
        set(Kind::NotWellFormed, here,
            QString("the tag of \"%1\" has no \">\" before this").arg(tag.captured(1)),
            "end the tag before the next one begins");
    else if (QStringView(m_text).mid(quote, end - quote).contains(QLatin1Char('>')))
        set(Kind::NotWellFormed, {quote, quote + 1}, "the quote that begins here has no end",
            "end the value with the quote that it begins with");
    else
        set(Kind::NotWellFormed, here, "\"<\" in the value of an attribute", "write \"&lt;\"");
    return true;
}

/** The text ends inside a comment or other markup, not between tags. */
bool PxSourceFault::findMarkupWithoutEnd(int begin)
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
        // The tag has a ">", so that must be inside a value without an end.
        const bool isInValue = mark.size() == 1 && m_text.indexOf(QLatin1Char('>'), begin) >= 0 &&
                               m_text.at(begin + 1) != QLatin1Char('!');
        set(Kind::EndMissing, {begin, begin + mark.size()},
            QString("this %1 has no end").arg(QLatin1String(row.name)),
            isInValue ? "end the value with the quote that it begins with"
                      : QString("end it with \"%1\"").arg(QLatin1String(row.end)));
        return true;
    }
    return false;
}

/** The text ends before the document element begins, or before it ends. */
void PxSourceFault::findMissingElement(int end)
{
    m_isUnclosed = !m_open.isEmpty();
    if (m_isUnclosed)
        set(Kind::EndMissing, {end, end}, "the file ends too early", QString());
    else if (m_text.trimmed().isEmpty())
        set(Kind::EndMissing, {0, 0},
            m_text.isEmpty() ? "the file is empty" : "the file has nothing but blanks",
            "fill it, or delete it");
    else
        set(Kind::EndMissing, {end, end}, "the file ends before its first element",
            "fill it, or delete it");
}
