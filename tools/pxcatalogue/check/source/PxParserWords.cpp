#include "check/source/PxParserWords.h"

#include "check/source/PxStartTagScanner.h"

#include <QRegularExpression>

namespace {

/** Where the parser is when it stops. */
enum Where {
    Anywhere,
    InText,
    InComment,
    InCharacterData,
    InDeclaration, ///< of XML
    InInstruction,
    InDocumentType,
    InOtherMarkup, ///< that begins with "<!"
    InEndTag,
    InTag,
    BehindName, ///< of an attribute
    BehindEqualSign,
    BehindValue,
};

constexpr const char *attributeHint = R"(an attribute is a name, "=", and a value between quotes)";
constexpr const char *endTagHint = R"(an end tag is only the name, as in "</name>")";
constexpr const char *nameHint = R"(a name begins with a letter or "_")";
constexpr const char *declarationHint = R"(write <?xml version="1.0" encoding="UTF-8"?>)";

// clang-format off
/** Patterns for the end of the text; the group is the place of the finding, and %1 its text. */
constexpr struct { Where where; const char *end; const char *words; const char *hint; } rows[] = {
    {Anywhere, "(&(?:#\\w*)?;)$", "\"%1\" names no character", "write the character itself, or \"&amp;\" for \"&\""},
    {Anywhere, "(&)#?\\w*[^\\w;#]$", "a \"&\" that names no character", "write \"&amp;\" for \"&\" itself"},
    {Anywhere, "(<)(?:\\d|[^\\w/!?])$", "a \"<\" that begins no tag", "let a name follow it at once, or write \"&lt;\" for \"<\" itself"},
    {InText, "(\\]\\]>)$", "\"%1\" in a text", "write \"]]&gt;\""},
    {BehindEqualSign, "=\\s*([„“”‚‘’«»])$", "a quotation mark that XML does not know", "write plain quotes"},
    {BehindEqualSign, "=\\s*(=)$", "a second \"=\"", "take it out"},
    {BehindEqualSign, "=\\s*([^\\s<])$", "the value of an attribute has no quotes", "put it between quotes"},
    {BehindName, "\\s([\\w.-]*:[\\w.-]*:)$", "a second \":\" in a name", "names have no prefix here"},
    {BehindName, "[\"']\\s*([,;])$", "\"%1\" between attributes", "separate them with blanks only"},
    {BehindValue, "[\"']([,;])$", "\"%1\" between attributes", "separate them with blanks only"},
    {BehindName, "\\s([^\\s<>=/\"',;]+)\\s*[^\\s<]$", "an attribute without a value", "write a \"=\" and a value between quotes behind it"},
    {BehindName, "\\s([\"'])$", "a quote where no value begins", attributeHint},
    {BehindName, "\\s([^\\s<>])$", "\"%1\" begins no name", nameHint},
    {BehindValue, "[\"']([^\\s<>/])$", "no blank behind the value of an attribute", "add the blank, or the quote that is missing before"},
    {InTag, "(:)[^\\w]$", "no name behind a \":\"", "names have no prefix here"},
    {InTag, "(/)[^>]$", "a \"/\" that does not end the tag", "let \">\" follow it at once, or take it out"},
    {InEndTag, "(</)[\\s>]$", "an end tag without a name", endTagHint},
    {InEndTag, "\\s([^\\s>])$", "the end tag has more than a name", endTagHint},
    {InComment, "(--)[^>]$", "\"--\" within a comment", "a comment ends with \"-->\" and holds no other \"--\""},
    {InCharacterData, "(<!\\[CDATA\\[)$", "a CDATA section outside the document element", "take it out, or move it into the element"},
    {InOtherMarkup, "(<!)[\\w-]*.$", "\"%1\" begins no comment", "a comment is as \"<!-- text -->\""},
    {InInstruction, "(<\\?)[^\\w]$", "\"<?\" without a name", "let a name follow it at once, or write \"&lt;\" for \"<\" itself"},
    {InInstruction, "(<\\?(?:XML|xmlversion))\\b.*$", "\"%1\" is no declaration of XML", declarationHint},
};

/** What is said of any other fault, at the character where the parser stops; %1 is that. */
constexpr struct { Where where; const char *words; const char *hint; } lastWords[] = {
    {Anywhere, "%1 is not allowed here", "take it out"},
    {InDeclaration, "%1 is not allowed here in the declaration of XML", declarationHint},
    {InInstruction, "%1 is not allowed here in an instruction", "an instruction is as \"<?name text?>\""},
    {InDocumentType, "%1 is not allowed here in the document type", "take the document type out: nothing needs it"},
    {InEndTag, "%1 is not allowed here in an end tag", endTagHint},
    {InTag, "%1 is not allowed here in a tag", attributeHint},
};
// clang-format on

Where whereIn(QStringView text, int begin)
{
    using Lack = PxStartTagScanner::Lack;
    QStringView token = text.mid(begin);
    while (!token.isEmpty() && token.first().isSpace())
        token = token.mid(1);
    constexpr struct
    {
        const char *begin;
        Where where;
    } beginnings[] = {
        {"<!--", InComment},   {"<![CDATA[", InCharacterData}, {"<!DOCTYPE", InDocumentType},
        {"<!", InOtherMarkup}, {"<?", InInstruction},          {"</", InEndTag},
    };
    static const QRegularExpression ourDeclaration("^<\\?xml(?![\\w.:-])");
    if (begin == 0 && ourDeclaration.match(text).hasMatch())
        return InDeclaration;
    for (const auto &row : beginnings) {
        if (token.startsWith(QLatin1String(row.begin)))
            return row.where;
    }
    if (!token.startsWith('<'))
        return InText;
    switch (PxStartTagScanner(token, 0).lack()) {
    case Lack::EqualSign:
        return BehindName;
    case Lack::Quote:
        return BehindEqualSign;
    case Lack::Blank:
        return BehindValue;
    default:
        return InTag;
    }
}

bool isInTag(Where where)
{
    return where >= InTag || where == InEndTag;
}

bool isXmlBlank(QChar c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/** Whether the character looks like a blank, or like nothing, but belongs to a name. */
bool isUnseen(QChar c)
{
    return (c.isSpace() && !isXmlBlank(c)) || c.category() == QChar::Other_Format;
}

bool isOfName(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c.isSurrogate() ||
           QStringView(u"-._:·").contains(c);
}

} // namespace

PxParserWords::PxParserWords(const QString &textUpToFault, int token)
{
    if (!findForbidden(textUpToFault) && !findStrange(textUpToFault, token) &&
        !findInDeclaration(token == 0 ? textUpToFault : QString()) &&
        !findPattern(textUpToFault, token))
        describe(textUpToFault, token);
}

QString PxParserWords::nameOf(QChar character)
{
    const QString code =
        "U+" + QString::number(character.unicode(), 16).toUpper().rightJustified(4, '0');
    if (character.isNull())
        return "the end of the text";
    if (character == '\n' || character == '\r')
        return "a line break";
    if (isXmlBlank(character))
        return "a blank";
    if (character == QChar::Nbsp)
        return "the no-break space " + code;
    if (character.category() == QChar::Other_Control)
        return "the control character " + code;
    const bool isSeen = character.isPrint() && !isUnseen(character) && !character.isMark();
    return isSeen ? '"' + QString(character) + '"' : "the character " + code;
}

bool PxParserWords::isForbidden(QChar character)
{
    return (character.category() == QChar::Other_Control && !isXmlBlank(character)) ||
           character >= QChar(0xFFFE);
}

void PxParserWords::set(const PxSourceRange &range, const QString &message, const QString &hint)
{
    m_range = range;
    m_message = message;
    m_hint = hint;
}

bool PxParserWords::findForbidden(const QString &text)
{
    if (text.isEmpty() || !isForbidden(text.back()))
        return false;
    const bool isZero = text.back().isNull();
    set({text.size() - 1, text.size()},
        isZero ? "the control character U+0000" : nameOf(text.back()),
        isZero ? "the file was damaged when it was copied or saved: take it out"
               : "XML does not allow it: take it out");
    return true;
}

/** Finds a character in a tag, outside its values, that no name may have. */
bool PxParserWords::findStrange(const QString &text, int token)
{
    if (!isInTag(whereIn(text, token)))
        return false;
    const int begin = text.indexOf('<', token) + 1;
    QChar quote;
    bool isInName = true; // of the element; in those of attributes the parser takes any
    for (int i = begin; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (!quote.isNull()) {
            quote = c == quote ? QChar() : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (isForbidden(c) || isUnseen(c)) {
            set({i, i + 1}, nameOf(c) + " in a tag",
                c.isSpace() ? "write a plain blank" : "take it out");
            return true;
        } else if (isInName && !isOfName(c) && !isXmlBlank(c) && c.unicode() >= 0x80) {
            set({i, i + 1}, nameOf(c) + " in a name",
                R"(a name has letters, digits, "_", "-" and ".")");
            return true;
        }
        isInName = isInName && isOfName(c);
    }
    return false;
}

bool PxParserWords::findPattern(const QString &text, int token)
{
    constexpr int maximumLength = 256;
    const Where where = whereIn(text, token);
    const int begin = qMax(0, text.size() - maximumLength);
    const QString end = text.mid(begin);
    for (const auto &row : rows) {
        const QRegularExpression pattern(row.end, QRegularExpression::UseUnicodePropertiesOption);
        const QRegularExpressionMatch match = pattern.match(end);
        if ((row.where != Anywhere && row.where != where) || !match.hasMatch())
            continue;
        set({begin + match.capturedStart(1), begin + match.capturedEnd(1)},
            QString(row.words).replace("%1", match.captured(1)), row.hint);
        return true;
    }
    return false;
}

/** Finds what is wrong with the declaration of XML, where the text begins with one. */
bool PxParserWords::findInDeclaration(const QString &text)
{
    // clang-format off
    static const struct { QRegularExpression pattern; const char *words; const char *hint; } ourRows[] = {
        {QRegularExpression("^(<\\?xml)(?:\\s*\\?|\\s+(?!version)\\w)"), "the declaration of XML does not begin with a version", declarationHint},
        {QRegularExpression("\\sversion\\s*=\\s*[\"'](?!1\\.0[\"'])([^\"']*)"), "the version of XML is \"%1\", which is not known", "write version=\"1.0\""},
        {QRegularExpression("\\sstandalone\\s*=\\s*[\"'](?!(?:yes|no)[\"'])([^\"']*)"), "\"%1\" is neither \"yes\" nor \"no\"", "take \"standalone\" out: nothing needs it"},
        {QRegularExpression("\\sstandalone\\s*=\\s*[\"']\\w*[\"']\\s+(encoding)"), "the encoding must stand before \"standalone\"", declarationHint},
        {QRegularExpression("\\sencoding\\s*=\\s*[\"'](?![A-Za-z][\\w.-]*[\"'])([^\"']*)"), "\"%1\" is no name of an encoding", "save the file as UTF-8, and declare that"},
    };
    // clang-format on
    if (whereIn(text, 0) != InDeclaration)
        return false;
    for (const auto &row : ourRows) {
        const QRegularExpressionMatch match = row.pattern.match(text);
        if (!match.hasMatch())
            continue;
        set({match.capturedStart(1), match.capturedEnd(1)},
            QString(row.words).replace("%1", match.captured(1)), row.hint);
        return true;
    }
    return false;
}

void PxParserWords::describe(const QString &text, int token)
{
    m_isCertain = false;
    const Where where = whereIn(text, token);
    const Where wanted = where >= InTag ? InTag : where;
    const auto *words = lastWords;
    for (const auto &row : lastWords) {
        if (row.where == wanted)
            words = &row;
    }
    set({qMax(0, text.size() - 1), text.size()},
        QString(words->words).arg(nameOf(text.isEmpty() ? QChar() : text.back())), words->hint);
}
