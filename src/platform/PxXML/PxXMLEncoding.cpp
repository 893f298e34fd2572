#include "PxXMLEncoding.h"

#include <QTextCodec>

#include <algorithm>
#include <optional>

namespace {

/**
 * Qt destroys its codecs in reverse order of their first use: used when this library is loaded,
 * they outlive the static objects of the program, whose destructors may still read files.
 */
void keepCodecs()
{
    QTextCodec::codecForName("UTF-8");
}
Q_CONSTRUCTOR_FUNCTION(keepCodecs)

bool isQuote(char c)
{
    return c == '"' || c == '\'';
}

/** Not by a regular expression: Qt cannot match any more while the process ends. */
std::optional<QByteArray> declaredEncoding(const QByteArray &declaration)
{
    const QByteArray name = QByteArrayLiteral("encoding");
    for (int at = declaration.indexOf(name); at > 0; at = declaration.indexOf(name, at + 1)) {
        const bool isWord = declaration.mid(at - 1, 1).trimmed().isEmpty();
        const QByteArray equals = declaration.mid(at + name.size()).trimmed();
        const QByteArray value = equals.mid(1).trimmed();
        if (!isWord || !equals.startsWith('=') || value.isEmpty() || !isQuote(value.front()))
            continue;
        const auto end = std::find_if(value.begin() + 1, value.end(), isQuote);
        if (end != value.end())
            return value.mid(1, int(end - value.begin()) - 1);
    }
    return std::nullopt;
}

} // namespace

QTextCodec *PxXMLEncoding::codecOf(const QByteArray &bytes)
{
    if (QTextCodec *marked = QTextCodec::codecForUtfText(bytes, nullptr))
        return marked;
    // "<" with a zero byte beside it: the reader takes that for UTF-16, so we do, too.
    if (bytes.startsWith('\0'))
        return QTextCodec::codecForName("UTF-16BE");
    if (bytes.size() > 1 && bytes.at(1) == '\0')
        return QTextCodec::codecForName("UTF-16LE");
    return QTextCodec::codecForName(
        declaredEncoding(declaration(bytes)).value_or(QByteArrayLiteral("UTF-8")));
}

QByteArray PxXMLEncoding::declaration(const QByteArray &text)
{
    constexpr int maximumLength = 1024;
    const QByteArray start = text.left(maximumLength);
    return start.startsWith("<?xml") ? start.left(start.indexOf("?>")) : QByteArray();
}
