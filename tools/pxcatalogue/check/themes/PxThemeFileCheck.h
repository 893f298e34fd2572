#pragma once

#include "check/findings/PxReporter.h"
#include "check/words/PxImageNames.h"
#include "check/words/PxListedProductTypes.h"

#include <themes/PxThemeImages.h>

/** Checks a theme file: its themes, and whether the images that it names can be found. */
class PxThemeFileCheck
{
public:
    /** `root` is the document element. It, types and images must outlive the check. */
    PxThemeFileCheck(const PxSourceElement &root, PxListedProductTypes &types, PxImageNames &images,
                     const PxReporter &report)
        : m_root(root)
        , m_types(types)
        , m_names(images)
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

    void checkStrayNodes() const;
    void checkLogo(const PxSourceElement &logo);
    void checkThumbnail(const PxSourceElement &theme);
    void checkRelativeThumbnails();
    void checkImage(const Image &image);
    QString hint(const Image &image);

    const PxSourceElement &m_root;
    PxListedProductTypes &m_types;
    PxImageNames &m_names;
    const PxReporter m_report;
    QVector<const PxSourceAttribute *> m_relativeThumbnails;
    PxThemeImages m_images;
};
