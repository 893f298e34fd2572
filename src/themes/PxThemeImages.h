#pragma once

#include "PxProductPropertiesExport.h"

#include <QByteArray>
#include <QImage>
#include <QMap>
#include <QString>

/**
 * The images of the theme files, each read once however many themes show it, by whatever path.
 *
 * Theme files come from afar, and so do the images that they name: only regular files are opened,
 * without waiting for anybody, and decoded as far as PxPictureData and the bounds of this class
 * allow.
 */
class PXPRODUCTPROPERTIES_EXPORT PxThemeImages
{
public:
    /** Bytes of a file. */
    static constexpr int maximumFileSize = 8 * 1024 * 1024;
    /** Pixels of all images that are decoded; up to 512 MB. */
    static constexpr qint64 maximumAllPixels = 4LL * 4096 * 4096;
    /** Missing files that are looked for by another suffix: each asks for a dozen files. */
    static constexpr int maximumSearches = 2000;

    struct Result
    {
        QImage image; ///< null if there is none
        /** Why it is null or only a part, a predicate of the image: "is cut off". */
        QString fault;
        bool isThere = false; ///< the path leads to something
        bool isCutOff = false;
    };

    /**
     * The image of this path, or, as QImage finds it, of the path with the suffix of a format.
     *
     * Null with a warning that names the reason if the file cannot be shown, and without one if
     * there is none; null when main() is over.
     */
    QImage image(const QString &path) { return find(path).image; }
    /** The same, with the reason. */
    const Result &find(const QString &path);

private:
    QString fileOf(const QString &path);
    Result read(const QString &path);
    Result decode(const QByteArray &bytes);

    // Sorted: paths of a theme file may all share one hash.
    QMap<QString, Result> m_ofPath;
    QMap<QString, Result> m_ofFile; ///< by device and number, which no spelling changes
    qint64 m_pixels = 0;            ///< decoded so far
    int m_searchesLeft = maximumSearches;
};
