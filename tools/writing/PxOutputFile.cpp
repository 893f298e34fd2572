#include "writing/PxOutputFile.h"

#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <functional>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/** Returns what to write, part by part; nothing after the last part. */
using Parts = std::function<QByteArray()>;

Parts onePart(const QByteArray &contents)
{
    return [contents, isWritten = false]() mutable {
        return std::exchange(isWritten, true) ? QByteArray() : contents;
    };
}

Parts partsOf(const PxJsonLines &lines)
{
    return [&lines] {
        const std::optional<PxJsonLine> line = lines();
        return line ? line->toUtf8() : QByteArray();
    };
}

/** Returns 0, or the error number of the system. */
int writeParts(int descriptor, const Parts &parts)
{
    for (QByteArray part = parts(); !part.isEmpty(); part = parts()) {
        if (const int error = PxOutputFile::write(descriptor, part))
            return error;
    }
    return 0;
}

/** The error of the system, and what the user can do. */
std::optional<PxProblem> problemOf(int error)
{
    if (error == 0)
        return std::nullopt;
    const bool isFull = error == ENOSPC || error == EDQUOT || error == EFBIG;
    return PxProblem{PxOutputFile::errorText(error) +
                     (isFull ? "; make room, or name another file" : "; name another file")};
}

std::optional<PxProblem> problemOf(const QSaveFile &file)
{
    return PxProblem{file.errorString() + "; name another file"};
}

std::optional<PxProblem> replace(const QString &path, const Parts &parts)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return problemOf(file);
    // Bypasses the buffer of QSaveFile, which does not check its last write nor its fsync().
    int error = writeParts(file.handle(), parts);
    if (error == 0 && fsync(file.handle()) != 0 &&
        errno != EINVAL) // some file systems do not support fsync()
        error = errno;
    if (error != 0)
        return problemOf(error);
    return file.commit() ? std::nullopt : problemOf(file);
}

std::optional<PxProblem> writeInPlace(const QByteArray &name, const Parts &parts)
{
    const int descriptor = open(name.constData(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
    if (descriptor == -1)
        return problemOf(errno);
    const int error = writeParts(descriptor, parts);
    const int closingError = close(descriptor) == 0 ? 0 : errno;
    return problemOf(error != 0 ? error : closingError);
}

std::optional<PxProblem> writePath(const QString &path, const Parts &parts)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat file = {};
    if (stat(name.constData(), &file) != 0)
        return errno == ENOENT ? replace(path, parts) : problemOf(errno);
    for (const int descriptor : {STDOUT_FILENO, STDERR_FILENO}) {
        struct stat open = {};
        if (fstat(descriptor, &open) == 0 && open.st_dev == file.st_dev &&
            open.st_ino == file.st_ino)
            return problemOf(writeParts(descriptor, parts));
    }
    if (S_ISREG(file.st_mode))
        return replace(path, parts);
    if (S_ISFIFO(file.st_mode) || S_ISCHR(file.st_mode))
        return writeInPlace(name, parts);
    return PxProblem{"it is no regular file; name another file"};
}

} // namespace

std::optional<PxProblem> PxOutputFile::write(const QString &path, const QByteArray &contents)
{
    return writePath(path, onePart(contents));
}

std::optional<PxProblem> PxOutputFile::write(const QString &path, const PxJsonLines &lines)
{
    return writePath(path, partsOf(lines));
}

int PxOutputFile::write(int descriptor, const QByteArray &contents)
{
    for (int written = 0; written < contents.size();) {
        const auto count = ::write(descriptor, contents.constData() + written,
                                   std::size_t(contents.size() - written));
        if (count == -1 && errno != EINTR)
            return errno;
        written += count == -1 ? 0 : int(count);
    }
    return 0;
}

int PxOutputFile::write(int descriptor, const PxJsonLines &lines)
{
    return writeParts(descriptor, partsOf(lines));
}

QString PxOutputFile::errorText(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}
