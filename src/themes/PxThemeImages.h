#pragma once

#include "PxProductPropertiesExport.h"

#include <QByteArray>
#include <QImage>
#include <QMap>
#include <QString>

/**
 * The images of the theme files. Each file is read once, however many themes show it and by
 * whatever path.
 *
 * Theme files, and the images that they name, are of unknown origin. So only regular files are
 * opened, without waiting for any of them, and they are decoded only within the limits of
 * PxPictureData and of this class.
 */
class PXPRODUCTPROPERTIES_EXPORT PxThemeImages
{
public:
    /** Bytes per file. */
    static constexpr int maximumFileSize = 8 * 1024 * 1024;
    /** Pixels of all decoded images together; up to 512 MB. */
    static constexpr qint64 maximumAllPixels = 4LL * 4096 * 4096;
    /**
     * The number of missing files that are searched with other suffixes; each search tests a dozen
     * names.
     */
    static constexpr int maximumSearches = 2000;

    struct Result
    {
        QImage image; ///< null if there is none
        /** Why the image is null or incomplete, as a predicate: "is cut off". */
        QString fault;
        bool isThere = false; ///< whether the path exists
        bool isCutOff = false;
    };

    /**
     * The image with this path, or, as QImage finds it, with the path and the suffix of an image
     * format.
     *
     * If the file cannot be shown, the image is null and a warning gives the reason. If there is no
     * file, the image is null without a warning. After the end of main() it is always null.
     */
    QImage image(const QString &path) { return find(path).image; }
    /** The same, with the reason. */
    const Result &find(const QString &path);

private:
    QString fileOf(const QString &path);
    Result read(const QString &path);
    Result decode(const QByteArray &bytes);

    // No hashes: all paths in a hostile file may share one hash.
    QMap<QString, Result> m_ofPath;
    QMap<QString, Result> m_ofFile; ///< by device and inode, which are the same for every spelling
    qint64 m_pixels = 0;            ///< decoded so far
    int m_searchesLeft = maximumSearches;
};
