#include "PxXMLLoader.h"

#include "PxXMLPlainReader.h"
#include "PxXMLStrictReader.h"

#include <QDomImplementation>
#include <QFile>

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
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return PxXMLFault{QStringLiteral("the file cannot be opened: ") + file.errorString()};
    bytes = file.read(qMin<qint64>(file.size(), PxXMLLoader::maximumFileSize) + 1);
    if (file.error() != QFile::NoError)
        return PxXMLFault{QStringLiteral("the file cannot be read: ") + file.errorString()};
    if (bytes.size() > PxXMLLoader::maximumFileSize)
        return PxXMLFault{QStringLiteral("the file has %1 bytes, no more than %2 are allowed")
                              .arg(qMax<qint64>(file.size(), bytes.size()))
                              .arg(PxXMLLoader::maximumFileSize)};
    return std::nullopt;
}

std::string_view withoutByteOrderMark(const QByteArray &utf8)
{
    const std::string_view text(utf8.constData(), std::size_t(utf8.size()));
    return utf8.startsWith("\xEF\xBB\xBF") ? text.substr(3) : text;
}

Fault load(const QString &path, QDomDocument &document)
{
    QByteArray bytes;
    if (const Fault fault = readBytes(path, bytes))
        return fault;

    const std::string_view utf8 = withoutByteOrderMark(bytes);
    document = PxXMLPlainReader(utf8).read();
    if (!document.isNull())
        return std::nullopt;

    PxXMLStrictReader reader(bytes);
    const Fault fault = reader.read();
    if (!fault)
        document = reader.document();
    return fault;
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
