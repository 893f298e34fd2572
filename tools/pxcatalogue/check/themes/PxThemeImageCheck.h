#pragma once

#include "check/findings/PxReporter.h"
#include "check/words/PxImageNames.h"

#include <themes/PxThemeImages.h>

/** Checks whether the images that a theme file names are where the library looks for them. */
class PxThemeImageCheck
{
public:
    /** The images must outlive the check. */
    PxThemeImageCheck(PxImageNames &names, const PxReporter &report)
        : m_names(names)
        , m_report(report)
    {}

    void run();

private:
    /** An attribute that names an image, and the file that the library opens for it. */
    struct Image
    {
        const PxSourceAttribute *attribute;
        QString path;
        QLatin1String now;
    };

    void checkLogo(const PxSourceElement &logo);
    void checkThumbnail(const PxSourceElement &theme);
    void checkRelativeThumbnails();
    void checkImage(const Image &image);
    QString hint(const Image &image);

    PxImageNames &m_names;
    const PxReporter m_report;
    QVector<const PxSourceAttribute *> m_relativeThumbnails;
    PxThemeImages m_images;
};
