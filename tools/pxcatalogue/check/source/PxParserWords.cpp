#include "check/source/PxParserWords.h"

#include "check/source/PxStartTagScanner.h"

#include <QRegularExpression>

namespace {

/** Where the parser is when it stops. */
enum Where { Anywhere, InComment, BehindName, BehindEqualSign, BehindValue };

// clang-format off
/** Patterns for the end of the text; the group is the place of the finding. */
constexpr struct { Where where; const char *end; const char *words; const char *hint; } rows[] = {
    {Anywhere, "(&)#?\\w*[^\\w;#]$", "a \"&\" that names no character", "write \"&amp;\" for \"&\" itself"},
    {Anywhere, "(<)(?:\\d|[^\\w/!?:])$", "a \"<\" that begins no tag", "let a name follow it at once, or write \"&lt;\" for \"<\" itself"},
    {BehindEqualSign, "=\\s*([„“”‚‘’«»])$", "a quotation mark that XML does not know", "write plain quotes"},
    {BehindEqualSign, "=\\s*([^\\s<])$", "the value of an attribute has no quotes", "put it between quotes"},
    {BehindName, "\\s([\\w:.-]+)\\s*[^\\s<]$", "an attribute without a value", "write a \"=\" and a value between quotes behind it"},
    {BehindValue, "[\"']([^\\s<>/])$", "no blank behind the value of an attribute", "add the blank, or the quote that is missing before"},
    {InComment, "(--)[^>]$", "\"--\" within a comment", "a comment ends with \"-->\" and holds no other \"--\""},
};
// clang-format on

Where whereIn(QStringView token)
{
    using Lack = PxStartTagScanner::Lack;
    while (!token.isEmpty() && token.first().isSpace())
        token = token.mid(1);
    if (token.startsWith(u"<!--"))
        return InComment;
    if (!token.startsWith('<'))
        return Anywhere;
    switch (PxStartTagScanner(token, 0).lack()) {
    case Lack::EqualSign:
        return BehindName;
    case Lack::Quote:
        return BehindEqualSign;
    case Lack::Blank:
        return BehindValue;
    default:
        return Anywhere;
    }
}

} // namespace

PxParserWords::PxParserWords(const QString &textUpToFault, int token)
{
    constexpr int maximumLength = 256;
    const Where where = whereIn(QStringView(textUpToFault).mid(token));
    const int begin = qMax(0, textUpToFault.size() - maximumLength);
    const QString end = textUpToFault.mid(begin);
    for (const auto &row : rows) {
        const QRegularExpression pattern(row.end, QRegularExpression::UseUnicodePropertiesOption);
        const QRegularExpressionMatch match = pattern.match(end);
        if ((row.where != Anywhere && row.where != where) || !match.hasMatch())
            continue;
        m_message = row.words;
        m_hint = row.hint;
        m_range = {begin + match.capturedStart(1), begin + match.capturedEnd(1)};
        return;
    }
}
