#include "themes/PxThemeImages.h"

#include <QDebug>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr qint64 maximumPixels = 4096LL * 4096;        // of one image
constexpr qint64 maximumAllPixels = 4 * maximumPixels; // 512 MB, when one takes eight bytes

} // namespace

QImage PxThemeImages::image(const QString &path)
{
    const auto known = m_imageOfPath.constFind(path);
    if (known != m_imageOfPath.constEnd())
        return *known;
    return *m_imageOfPath.insert(path, read(path));
}

QImage PxThemeImages::read(const QString &path)
{
    if (path.isEmpty() || !QFileInfo(path).isFile())
        return QImage();
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        return QImage();
    const QSize size = reader.size(); // invalid when the format does not tell it beforehand
    const qint64 pixels = qint64(size.width()) * size.height();
    if (!size.isValid() || pixels > maximumPixels || m_pixels + pixels > maximumAllPixels) {
        qWarning() << "PxThemeImages::read image is too large, left out:" << path << size;
        return QImage();
    }
    m_pixels += pixels;
    return reader.read();
}
