#include "themes/PxThemeImages.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QImageReader>

#include <atomic>
#include <cstdlib>

namespace {

constexpr qint64 maximumPixels = 4096LL * 4096;        // of one image
constexpr qint64 maximumAllPixels = 4 * maximumPixels; // 512 MB, when one takes eight bytes

std::atomic_bool isEnding{false};

/**
 * Image formats are plugins, which Qt lets go of when the process ends. What is registered for that
 * after main() has begun runs before the destructors of the program's static objects.
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

} // namespace

QImage PxThemeImages::image(const QString &path)
{
    const auto known = m_imageOfPath.constFind(path);
    if (known != m_imageOfPath.constEnd())
        return *known;
    return *m_imageOfPath.insert(path, read(path));
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
        qWarning() << "PxThemeImages::fileOf too many images are missing: none is looked for by "
                      "another suffix behind"
                   << path;
    return QString();
}

QImage PxThemeImages::read(const QString &path)
{
    noticeTheEnd();
    const QString file = isEnding ? QString() : fileOf(path);
    if (file.isEmpty())
        return QImage();
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        return QImage();
    const QSize size = reader.size(); // invalid when the format does not tell it beforehand
    const qint64 pixels = qint64(size.width()) * size.height();
    if (!size.isValid() || pixels > maximumPixels || m_pixels + pixels > maximumAllPixels) {
        qWarning() << "PxThemeImages::read image is too large, left out:" << file << size;
        return QImage();
    }
    m_pixels += pixels;
    return reader.read();
}
