#include "PxXMLLoader.h"

#include "PxXMLDocumentBuilder.h"
#include "PxXMLMarkupScanner.h"

#include <QDomImplementation>
#include <QFile>
#include <QRegularExpression>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace {

using Fault = std::optional<PxXMLFault>;

/** Reads the whole file, if it is one that ends. */
Fault readBytes(const QString &path, QByteArray &bytes)
{
    if (path.isEmpty())
        return PxXMLFault{QStringLiteral("no file name is given")};
    const QFileInfo info(path); // a new one: the caller's may remember what was there before
    if (!info.exists())
        return PxXMLFault{QStringLiteral("there is no such file")};
    // A pipe or a device could keep us waiting, or reading, for ever.
    if (!info.isFile())
        return PxXMLFault{QStringLiteral("this is no regular file")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return PxXMLFault{QStringLiteral("the file cannot be opened: ") + file.errorString()};
    bytes = file.read(PxXMLLoader::maximumFileSize + 1);
    if (file.error() != QFile::NoError)
        return PxXMLFault{QStringLiteral("the file cannot be read: ") + file.errorString()};
    if (bytes.size() > PxXMLLoader::maximumFileSize)
        return PxXMLFault{QStringLiteral("the file has %1 bytes, no more than %2 are allowed")
                              .arg(qMax<qint64>(file.size(), bytes.size()))
                              .arg(PxXMLLoader::maximumFileSize)};
    return std::nullopt;
}

/** The XML declaration at the start of an ASCII-compatible text, without its end; or empty. */
QByteArray xmlDeclaration(const QByteArray &text)
{
    constexpr int maximumLength = 1024;
    const QByteArray start = text.left(maximumLength);
    return start.startsWith("<?xml") ? start.left(start.indexOf("?>")) : QByteArray();
}

/** By byte order mark or declaration, UTF-8 without these; null for an encoding we do not know. */
QTextCodec *codecOf(const QByteArray &bytes)
{
    if (QTextCodec *marked = QTextCodec::codecForUtfText(bytes, nullptr))
        return marked;
    // "<" with a zero byte beside it: the reader takes that for UTF-16, so we do, too.
    if (bytes.startsWith('\0'))
        return QTextCodec::codecForName("UTF-16BE");
    if (bytes.size() > 1 && bytes.at(1) == '\0')
        return QTextCodec::codecForName("UTF-16LE");
    static const QRegularExpression ourEncoding(
        QStringLiteral("\\sencoding\\s*=\\s*[\"']([^\"']*)[\"']"));
    const QRegularExpressionMatch declared =
        ourEncoding.match(QString::fromLatin1(xmlDeclaration(bytes)));
    return QTextCodec::codecForName(declared.hasMatch() ? declared.captured(1).toLatin1()
                                                        : QByteArrayLiteral("UTF-8"));
}

/** Decodes the first bytes; false when some are no text in this encoding. */
bool decode(const QTextCodec &codec, const QByteArray &bytes, int size, QString &text)
{
    constexpr int utf8 = 106;
    constexpr int utf16BigEndian = 1013; // the first of the IANA numbers of UTF-16 and UTF-32
    constexpr int utf32LittleEndian = 1019;
    const int number = codec.mibEnum();
    const bool isUnicode =
        number == utf8 || (number >= utf16BigEndian && number <= utf32LittleEndian);

    QTextCodec::ConverterState state;
    text = codec.toUnicode(bytes.constData(), size, &state);
    // Codecs of other encodings do not count faults, they leave the character that stands for one.
    return state.invalidChars == 0 && (size < bytes.size() || state.remainingChars == 0) &&
           (isUnicode || !text.contains(QChar::ReplacementCharacter));
}

/** Where the part of the bytes ends that can be decoded. */
PxXMLFault undecodable(const QTextCodec &codec, const QByteArray &bytes)
{
    int good = 0;
    int bad = bytes.size();
    QString text;
    while (bad - good > 1) {
        const int middle = good + (bad - good) / 2;
        QString part;
        if (decode(codec, bytes, middle, part)) {
            good = middle;
            text = part;
        } else {
            bad = middle;
        }
    }
    return {QStringLiteral("the text is no valid ") + QString::fromLatin1(codec.name()),
            text.count(QLatin1Char('\n')) + 1, text.size() - text.lastIndexOf(QLatin1Char('\n'))};
}

/** Whether the text is in the encoding that it declares, if it declares one. */
bool isDeclared(const QTextCodec *codec, const QString &declared)
{
    if (declared.isEmpty())
        return codec->name().startsWith("UTF-");
    const QByteArray name = declared.toLatin1();
    // "UTF-16" leaves the byte order to the mark.
    return QTextCodec::codecForName(name) == codec ||
           (name.toUpper() == "UTF-16" && codec->name().startsWith("UTF-16"));
}

Fault load(const QString &path, QDomDocument &document)
{
    QByteArray bytes;
    if (const Fault fault = readBytes(path, bytes))
        return fault;

    const QTextCodec *codec = codecOf(bytes);
    if (!codec)
        return PxXMLFault{QStringLiteral("the declared encoding is unknown"), 1, 1};
    QString text;
    if (!decode(*codec, bytes, bytes.size(), text))
        return undecodable(*codec, bytes);

    // The reader gets UTF-8 as it is, which is quickest. Of any other encoding it gets the decoded
    // text: then it reads just the characters that were scanned, whatever the file declares.
    const bool isUtf8 = codec == QTextCodec::codecForName("UTF-8");
    if (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    if (!isUtf8)
        bytes = text.toUtf8();
    else if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    if (const Fault fault =
            PxXMLMarkupScanner({bytes.constData(), std::size_t(bytes.size())}).scan())
        return fault;

    QXmlStreamReader reader = isUtf8 ? QXmlStreamReader(bytes) : QXmlStreamReader(text);
    reader.setNamespaceProcessing(false);
    reader.readNext();
    const QString declared = reader.documentEncoding().toString();
    if (!reader.hasError() && !isDeclared(codec, declared))
        return PxXMLFault{QStringLiteral("the text is %1, but declares the encoding '%2'")
                              .arg(QString::fromLatin1(codec->name()), declared),
                          1, 1};
    PxXMLDocumentBuilder builder(reader, xmlDeclaration(bytes).contains("standalone"));
    if (const Fault fault = builder.build())
        return fault;
    document = builder.document();
    return std::nullopt;
}

} // namespace

QDomDocument PxXMLLoader::loadDocument(const QFileInfo &file, QString *error)
{
    QDomDocument document;
    const Fault fault = load(file.filePath(), document);
    if (error)
        *error = fault ? QStringLiteral("%1:%2:%3: %4")
                             .arg(file.filePath(), QString::number(fault->line),
                                  QString::number(fault->column), fault->message)
                       : QString();
    return document;
}

QDomElement PxXMLLoader::loadDocumentElement(const QFileInfo &file, QString *error)
{
    const QDomDocument document = loadDocument(file, error);
    const QDomElement element = document.documentElement();
    if (element.isNull())
        return element;
    // Left in its document, the element would go on pointing to it and to its siblings there when
    // these are destroyed; just taken out, still to the document. Only a node that was taken from a
    // parent without document forgets all of them, and no other kind of node can be such a parent.
    QDomDocumentType parent =
        QDomImplementation().createDocumentType(QStringLiteral("none"), QString(), QString());
    parent.appendChild(element);
    parent.removeChild(element);
    return element;
}
