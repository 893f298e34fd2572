#pragma once

#include "check/source/PxCheckedFile.h"
#include "check/words/PxImageNames.h"

#include <themes/PxThemeImages.h>

/** Checks whether the images that a theme file names are there, where the library looks for them.
 */
class PxThemeImageCheck
{
public:
    /** The file must outlive the check. */
    explicit PxThemeImageCheck(const PxCheckedFile &file) : m_file(file) {}

    /** The image is a path in the resource directories. */
    void checkLogo(const PxSourceElement &logo, PxFindings *findings);
    /** A relative one is kept for finish(). */
    void checkThumbnail(const PxSourceElement &theme, PxFindings *findings);
    /** When all thumbnails have been checked. */
    void finish(PxFindings *findings);

private:
    /** An attribute that names an image, and the file that the library opens for it. */
    struct Image
    {
        const PxSourceAttribute *attribute;
        QString path;
        QLatin1String now;
    };

    void checkImage(const Image &image, PxFindings *findings);
    QString hint(const Image &image);

    const PxCheckedFile &m_file;
    QVector<const PxSourceAttribute *> m_relativeThumbnails;
    PxThemeImages m_images;
    PxImageNames m_imageNames{PxImageNames::Kind::Lower};
};
