#include "PxXMLStrictReader.h"

#include "PxXMLDocumentBuilder.h"
#include "PxXMLEncoding.h"
#include "PxXMLMarkupScanner.h"

#include <QString>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace {

/** Decodes the first bytes; false if some of them are invalid in this encoding. */
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
    // Codecs of other encodings do not count invalid bytes, but leave the replacement character.
    return state.invalidChars == 0 && (size < bytes.size() || state.remainingChars == 0) &&
           (isUnicode || !text.contains(QChar::ReplacementCharacter));
}

/** The fault at the first place that cannot be decoded. */
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
    return PxXMLMarkupScanner::faultBehind(text, PxXMLFault::Kind::Encoding,
                                           QStringLiteral("the text is no valid ") +
                                               QString::fromLatin1(codec.name()));
}

/** A fault at the encoding that the text declares. */
PxXMLFault faultAtEncoding(const QByteArray &text, const QString &message)
{
    const int position = qMax(0, PxXMLEncoding::declared(text).capturedStart(1));
    return PxXMLMarkupScanner::faultBehind(QString::fromLatin1(text.left(position)),
                                           PxXMLFault::Kind::Encoding, message);
}

/** Whether the text is in the encoding that it declares. It may declare none if it is Unicode. */
bool isDeclared(const QTextCodec &codec, const QString &declared)
{
    if (declared.isEmpty())
        return codec.name().startsWith("UTF-");
    const QByteArray name = declared.toLatin1();
    // "UTF-16" leaves the byte order to the byte order mark.
    return QTextCodec::codecForName(name) == &codec ||
           (name.toUpper() == "UTF-16" && codec.name().startsWith("UTF-16"));
}

} // namespace

PxXMLFault PxXMLStrictReader::read()
{
    const QTextCodec *codec = PxXMLEncoding::codecOf(m_bytes);
    // A declaration that can be read byte by byte is not in an encoding of wider characters.
    if (codec && (codec->name().startsWith("UTF-16") || codec->name().startsWith("UTF-32")) &&
        PxXMLEncoding::declared(m_bytes).hasMatch())
        return faultAtEncoding(
            m_bytes, QStringLiteral("the file declares the encoding \"%1\", but is not in it")
                         .arg(PxXMLEncoding::declared(m_bytes).captured(1)));
    if (!codec)
        return faultAtEncoding(
            m_bytes, QStringLiteral("the file declares the encoding \"%1\", which is not known")
                         .arg(PxXMLEncoding::declared(m_bytes).captured(1)));
    PxXMLFault fault = readText(*codec);
    fault.encoding = QString::fromLatin1(codec->name());
    return fault;
}

PxXMLFault PxXMLStrictReader::readText(const QTextCodec &codec)
{
    QString text;
    if (!decode(codec, m_bytes, m_bytes.size(), text))
        return undecodable(codec, m_bytes);

    // UTF-8 goes to the reader unchanged, which is fastest. Text in any other encoding goes there
    // decoded: so the reader reads exactly the characters that were scanned, whatever the file
    // declares.
    const bool isUtf8 = &codec == QTextCodec::codecForName("UTF-8");
    if (!isUtf8)
        m_bytes = text.toUtf8();
    else if (m_bytes.startsWith("\xEF\xBB\xBF"))
        m_bytes.remove(0, 3);
    if (const std::optional<PxXMLFault> found =
            PxXMLMarkupScanner({m_bytes.constData(), std::size_t(m_bytes.size())}).scan())
        return *found;

    QXmlStreamReader reader = isUtf8 ? QXmlStreamReader(m_bytes) : QXmlStreamReader(text);
    reader.setNamespaceProcessing(false);
    reader.readNext();
    const QString declared = reader.documentEncoding().toString();
    if (!reader.hasError() && !isDeclared(codec, declared))
        return faultAtEncoding(m_bytes,
                               QStringLiteral("the text is %1, but declares the encoding \"%2\"")
                                   .arg(QString::fromLatin1(codec.name()), declared));
    PxXMLDocumentBuilder builder(reader,
                                 PxXMLEncoding::declaration(m_bytes).contains("standalone"));
    if (const std::optional<PxXMLFault> found = builder.build())
        return *found;
    m_document = builder.document();
    return {};
}
