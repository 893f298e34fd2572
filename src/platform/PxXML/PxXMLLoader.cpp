#include "PxXMLLoader.h"

#include "PxXMLPlainReader.h"
#include "PxXMLScratch.h"
#include "PxXMLStrictReader.h"

#include <QByteArray>
#include <QDomImplementation>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

PxXMLFault unreadable(const QString &message)
{
    return {PxXMLFault::Kind::Unreadable, message};
}

QString noRegularFile()
{
    return QStringLiteral("this is no regular file");
}

PxXMLFault tooLarge(qint64 size)
{
    return {PxXMLFault::Kind::Limit,
            QStringLiteral("the file has %1 bytes, no more than %2 are allowed")
                .arg(size)
                .arg(PxXMLLoader::maximumFileSize)};
}

PxXMLFault cannotOpen(const QString &reason)
{
    return unreadable(QStringLiteral("the file cannot be opened: ") + reason);
}

/** Repeats a call of the system that a signal interrupts. */
template <typename Call>
auto unlessInterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

/** Reads a file that is compiled in. */
PxXMLFault readResource(const QString &path, QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return cannotOpen(file.errorString());
    if (file.size() > PxXMLLoader::maximumFileSize)
        return tooLarge(file.size());
    bytes.resize(int(file.size()));
    bytes.resize(int(qMax(qint64(0), file.read(bytes.data(), bytes.size()))));
    return {};
}

/** Reads a file from its start, if it is a regular one. */
PxXMLFault readHandle(int handle, QByteArray &bytes)
{
    struct stat status = {};
    if (fstat(handle, &status) != 0 || !S_ISREG(status.st_mode))
        return unreadable(noRegularFile());
    if (status.st_size > PxXMLLoader::maximumFileSize)
        return tooLarge(status.st_size);
    bytes.resize(int(status.st_size));
    int size = 0;
    ssize_t part = 1;
    while (part > 0 && size < bytes.size()) {
        part = unlessInterrupted(
            [&] { return ::read(handle, bytes.data() + size, std::size_t(bytes.size() - size)); });
        if (part == -1)
            return unreadable(QStringLiteral("the file cannot be read: ") + qt_error_string(errno));
        size += int(part);
    }
    bytes.resize(size); // it may have become shorter
    return {};
}

/**
 * Reads the whole file, if it is a regular one. If a pipe has taken the place of the file, it
 * neither waits for the pipe nor reads it.
 *
 * QFile would ask the system three times as much.
 */
PxXMLFault readBytes(const QFileInfo &info, QByteArray &bytes)
{
    const QString path = info.filePath();
    if (path.isEmpty())
        return unreadable(QStringLiteral("no file name is given"));
    // Opening a pipe or a device could have effects elsewhere. What the caller's QFileInfo knows
    // may be old: if it knows of a regular file, opening finds out.
    if (!info.isFile() && !QFileInfo(path).isFile())
        return unreadable(QFileInfo::exists(path) ? noRegularFile()
                                                  : QStringLiteral("there is no such file"));
    if (path.startsWith(QLatin1Char(':')))
        return readResource(path, bytes);
    const QByteArray name = QFile::encodeName(path);
    const int handle = unlessInterrupted(
        [&] { return ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); });
    if (handle == -1)
        return cannotOpen(qt_error_string(errno));
    PxXMLFault fault = readHandle(handle, bytes);
    close(handle);
    return fault;
}

std::string_view withoutByteOrderMark(const QByteArray &utf8)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    const std::string_view text(utf8.constData(), std::size_t(utf8.size()));
    return text.substr(0, mark.size()) == mark ? text.substr(mark.size()) : text;
}

/** Makes one line of a message, which may quote control characters of the file. */
QString oneLine(QString message)
{
    for (QChar &c : message) {
        if (c.category() == QChar::Other_Control && !c.isSpace())
            c = QChar::ReplacementCharacter;
    }
    return message.simplified();
}

QString errorOf(const QFileInfo &file, const PxXMLFault &fault)
{
    if (fault.kind == PxXMLFault::Kind::None)
        return QString();
    return QStringLiteral("%1:%2:%3: %4")
        .arg(file.filePath(), QString::number(fault.line), QString::number(fault.column),
             fault.message);
}

} // namespace

QDomDocument PxXMLLoader::loadDocument(const QFileInfo &file, PxXMLFault &fault)
{
    const PxXMLScratch::Loan scratch = PxXMLScratch::lend();
    QByteArray &bytes = scratch->bytes();
    fault = readBytes(file, bytes);
    if (fault.kind != PxXMLFault::Kind::None)
        return QDomDocument();

    const QDomDocument document =
        PxXMLPlainReader(withoutByteOrderMark(bytes), scratch->texts()).read();
    if (!document.isNull()) {
        fault.encoding = QStringLiteral("UTF-8");
        return document;
    }
    PxXMLStrictReader reader(bytes);
    fault = reader.read();
    if (fault.kind != PxXMLFault::Kind::None)
        fault.message = oneLine(fault.message);
    return reader.document();
}

QDomDocument PxXMLLoader::loadDocument(const QFileInfo &file, QString *error)
{
    PxXMLFault fault;
    const QDomDocument document = loadDocument(file, fault);
    if (error)
        *error = errorOf(file, fault);
    return document;
}

QDomElement PxXMLLoader::loadDocumentElement(const QFileInfo &file, PxXMLFault &fault)
{
    const QDomDocument document = loadDocument(file, fault);
    const QDomElement element = document.documentElement();
    if (element.isNull())
        return element;
    // If the element stayed in its document, or were only taken out of it, it would keep pointers
    // to the document (and to its siblings there) after these are destroyed. A node drops all of
    // them only when it is removed from a parent without a document, and a document type is the
    // only kind of node that can be such a parent.
    QDomDocumentType parent =
        QDomImplementation().createDocumentType(QStringLiteral("none"), QString(), QString());
    parent.appendChild(element);
    parent.removeChild(element);
    return element;
}

QDomElement PxXMLLoader::loadDocumentElement(const QFileInfo &file, QString *error)
{
    PxXMLFault fault;
    const QDomElement element = loadDocumentElement(file, fault);
    if (error)
        *error = errorOf(file, fault);
    return element;
}
