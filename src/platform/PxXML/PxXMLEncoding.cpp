#include "PxXMLEncoding.h"

#include <QRegularExpression>
#include <QString>
#include <QTextCodec>

namespace {

/**
 * Qt destroys its codecs, and the data with which it matches regular expressions, in the reverse
 * order of their first use. Used when this library is loaded, they outlive the static objects of
 * the program, whose destructors may still read files.
 */
void keepWhatQtDestroys()
{
    QTextCodec::codecForName("UTF-8");
    QRegularExpression(QStringLiteral("a")).match(QString());
}
Q_CONSTRUCTOR_FUNCTION(keepWhatQtDestroys)

} // namespace

QTextCodec *PxXMLEncoding::codecOf(const QByteArray &bytes)
{
    if (QTextCodec *marked = QTextCodec::codecForUtfText(bytes, nullptr))
        return marked;
    // The reader takes "<" with a zero byte beside it for UTF-16, and so do we.
    if (bytes.startsWith('\0'))
        return QTextCodec::codecForName("UTF-16BE");
    if (bytes.size() > 1 && bytes.at(1) == '\0')
        return QTextCodec::codecForName("UTF-16LE");
    const QRegularExpressionMatch found = declared(bytes);
    return QTextCodec::codecForName(found.hasMatch() ? found.captured(1).toLatin1()
                                                     : QByteArrayLiteral("UTF-8"));
}

QRegularExpressionMatch PxXMLEncoding::declared(const QByteArray &bytes)
{
    static const auto &ourEncoding =
        *new QRegularExpression(QStringLiteral("\\sencoding\\s*=\\s*[\"']([^\"']*)[\"']"));
    return ourEncoding.match(QString::fromLatin1(declaration(bytes)));
}

QByteArray PxXMLEncoding::declaration(const QByteArray &text)
{
    constexpr int maximumLength = 1024;
    const QByteArray start = text.left(maximumLength);
    return start.startsWith("<?xml") ? start.left(start.indexOf("?>")) : QByteArray();
}
