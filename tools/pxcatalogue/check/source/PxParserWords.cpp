#include "check/source/PxParserWords.h"

#include <QRegularExpression>

namespace {

// clang-format off
/** How the message begins and the text ends; the group is the place. */
constexpr struct { const char *message; const char *end; const char *words; const char *hint; } rows[] = {
    {"expected ", "(&)#?\\w*[^\\w;#]$", "a \"&\" that names no character", "write \"&amp;\" for \"&\" itself"},
    {"unexpected ", "(<)(?:\\d|[^\\w/!?:])$", "a \"<\" that begins no tag", "let a name follow it at once, or write \"&lt;\" for \"<\" itself"},
    {"expected ''' or '\"'", "=\\s*([„“”‚‘’«»])$", "a quotation mark that XML does not know", "write plain quotes"},
    {"expected ''' or '\"'", "=\\s*(\\S)$", "the value of an attribute has no quotes", "put it between quotes"},
    {"expected '='", "\\s([\\w:.-]+)\\s*\\S$", "an attribute without a value", "write a \"=\" and a value between quotes behind it"},
    {"expected '>' or '/'", "[\"']([^\\s>/])$", "no blank behind the value of an attribute", "add the blank, or the quote that is missing before"},
    {"expected '>'", "(--)[^>]$", "\"--\" within a comment", "a comment ends with \"-->\" and holds no other \"--\""},
};
// clang-format on

} // namespace

PxParserWords::PxParserWords(const QString &message, const QString &textUpToFault)
{
    constexpr int maximumLength = 256;
    const int begin = qMax(0, textUpToFault.size() - maximumLength);
    for (const auto &row : rows) {
        const QRegularExpression end(QString::fromUtf8(row.end),
                                     QRegularExpression::UseUnicodePropertiesOption);
        const QRegularExpressionMatch match = end.match(textUpToFault.mid(begin));
        if (!message.startsWith(QLatin1String(row.message)) || !match.hasMatch())
            continue;
        m_message = QString::fromUtf8(row.words);
        m_hint = QString::fromUtf8(row.hint);
        m_range = {begin + match.capturedStart(1), begin + match.capturedEnd(1)};
        return;
    }
}
