#pragma once

#include <QHash>
#include <QImage>
#include <QString>

/**
 * The images of the theme files, each read once however many themes show it.
 *
 * Theme files come from afar, and a few hundred bytes of an image file may stand for gigabytes: an
 * image is decoded only when it and all that were decoded before it stay within a bound.
 */
class PxThemeImages
{
public:
    /**
     * The image of this path, or, as QImage finds it, of the path with the suffix of a format.
     *
     * Null for a file that is missing, no regular file, no image, or too large (a warning); and
     * when main() is over.
     */
    QImage image(const QString &path);

private:
    QString fileOf(const QString &path);
    QImage read(const QString &path);

    QHash<QString, QImage> m_imageOfPath;
    qint64 m_pixels = 0;       ///< decoded so far
    int m_searchesLeft = 2000; ///< in vain, for a suffix: each asks for a dozen files
};
