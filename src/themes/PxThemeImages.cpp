#include "themes/PxThemeImages.h"

#include "themes/PxPictureData.h"

#include <PxMessage.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QImageReader>
#include <QList>

#include <atomic>
#include <cstdlib>

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::atomic_bool isEnding{false};

/**
 * Image formats are plugins, which Qt releases when the process ends. A handler that is registered
 * after main() has begun runs before the destructors of the static objects of the program.
 */
void noticeTheEnd()
{
    static const int ourRegistration = std::atexit([] { isEnding = true; });
    Q_UNUSED(ourRegistration)
}
Q_COREAPP_STARTUP_FUNCTION(noticeTheEnd)

bool isReadableFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isReadable();
}

/**
 * Opens a regular file without ever waiting. Returns what identifies the file; empty if it was not
 * opened.
 */
QString open(QFile *file)
{
    const QString name = file->fileName();
    if (name.startsWith(QLatin1Char(':'))) // compiled in
        return file->open(QIODevice::ReadOnly) ? name : QString();
    const int handle =
        ::open(QFile::encodeName(name).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status = {}; // is that of no regular file if there is no handle
    fstat(handle, &status);
    // What was a regular file when it was found may be a pipe by now.
    if (!S_ISREG(status.st_mode) || !file->open(handle, QIODevice::ReadOnly | QIODevice::Unbuffered,
                                                QFileDevice::AutoCloseHandle)) {
        close(handle);
        return QString();
    }
    return QStringLiteral("%1 %2").arg(status.st_dev).arg(status.st_ino);
}

/**
 * Sets the pixel ratio as QImageReader does it for a file: "logo@2x.png" has twice as many pixels
 * as it is shown with.
 */
void setPixelRatio(QImage *image, const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).baseName().right(3);
    const int ratio = suffix.mid(1, 1).toInt();
    if (ratio >= 2 && suffix.startsWith(QLatin1Char('@')) && suffix.endsWith(QLatin1Char('x')))
        image->setDevicePixelRatio(ratio);
}

} // namespace

const PxThemeImages::Result &PxThemeImages::find(const QString &path)
{
    const auto known = m_ofPath.constFind(path);
    if (known != m_ofPath.constEnd())
        return *known;
    return *m_ofPath.insert(path, read(path));
}

QString PxThemeImages::fileOf(const QString &path)
{
    if (path.isEmpty() || isReadableFile(path))
        return path;
    if (m_searchesLeft == 0)
        return QString();
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray &format : formats) {
        const QString file = path + QLatin1Char('.') + QString::fromLatin1(format);
        if (isReadableFile(file))
            return file;
    }
    if (--m_searchesLeft == 0)
        pxWarning() << "PxThemeImages::fileOf too many images are missing: none is looked for by "
                       "another suffix behind"
                    << path;
    return QString();
}

PxThemeImages::Result PxThemeImages::read(const QString &path)
{
    noticeTheEnd();
    if (isEnding || path.isEmpty())
        return {};
    Result result;
    if (path.size() >= PATH_MAX) { // no file can have such a name, and searching for it is slow
        result.fault = QStringLiteral("is not there");
        return result;
    }
    const QString name = fileOf(path);
    if (name.isEmpty()) {
        const QFileInfo info(path);
        result.isThere = info.exists();
        result.fault = !result.isThere ? QStringLiteral("is not there")
                       : info.isFile() ? QStringLiteral("cannot be read")
                                       : QStringLiteral("is no regular file");
        // The path of a logo that names no image is the resource directory: no warning then.
        if (result.isThere && !info.isDir())
            pxWarning() << "PxThemeImages::read" << path << qUtf8Printable(result.fault);
        return result;
    }
    QFile file(name);
    const QString id = open(&file);
    const auto known = m_ofFile.constFind(id);
    if (known != m_ofFile.constEnd()) {
        result = *known;
        setPixelRatio(&result.image, name);
        return result;
    }
    if (id.isEmpty())
        result.fault = QStringLiteral("is no regular file");
    else if (file.size() > maximumFileSize)
        result.fault = QStringLiteral("is too large: %1 bytes, no more than %2 are allowed")
                           .arg(file.size())
                           .arg(maximumFileSize);
    else
        result = decode(file.read(maximumFileSize));
    result.isThere = true;
    if (!result.fault.isEmpty())
        pxWarning() << "PxThemeImages::read" << name << qUtf8Printable(result.fault);
    if (!id.isEmpty())
        m_ofFile.insert(id, result);
    setPixelRatio(&result.image, name);
    return result;
}

PxThemeImages::Result PxThemeImages::decode(const QByteArray &bytes)
{
    const PxPictureData data(bytes);
    Result result;
    result.fault = data.fault();
    result.isCutOff = data.isCutOff();
    if (!result.fault.isEmpty())
        return result;
    if (m_pixels + data.pixels() > maximumAllPixels) {
        result.fault = QStringLiteral("is too much: all images together have more than %1 pixels")
                           .arg(maximumAllPixels);
        return result;
    }
    result.image = data.decoded();
    if (result.isCutOff)
        result.fault = QStringLiteral("is cut off");
    else if (result.image.isNull())
        result.fault = QStringLiteral("is damaged");
    m_pixels += qint64(result.image.width()) * result.image.height();
    return result;
}
