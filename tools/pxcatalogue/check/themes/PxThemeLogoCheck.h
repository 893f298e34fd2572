#pragma once

#include "check/source/PxCheckedFile.h"

#include <QHash>

class PxThemeImageCheck;

/** Checks the logos of a theme. */
class PxThemeLogoCheck
{
public:
    /** Both must outlive the check. */
    PxThemeLogoCheck(const PxCheckedFile &file, PxThemeImageCheck *images)
        : m_file(file)
        , m_images(*images)
    {}

    /** The element "logos". */
    void run(const PxSourceElement &logos, PxFindings *findings);

private:
    void checkProduct(const PxSourceElement &logo, PxFindings *findings);
    void checkPlace(const PxSourceElement &logo, PxFindings *findings);

    const PxCheckedFile &m_file;
    PxThemeImageCheck &m_images;
    QHash<int, const PxSourceElement *> m_logos; ///< by product type
};
