#pragma once

#include "check/PxCheckedFile.h"

#include <QHash>

class PxListedProductTypes;
class PxThemeImageCheck;

/** Checks the logos of a theme. */
class PxThemeLogoCheck
{
public:
    /** All must outlive the check. */
    PxThemeLogoCheck(const PxCheckedFile &file, PxListedProductTypes *types,
                     PxThemeImageCheck *images)
        : m_file(file)
        , m_types(*types)
        , m_images(*images)
    {}

    /** The element "logos". */
    void run(const PxSourceElement &logos, PxFindings *findings);

private:
    void checkProduct(const PxSourceElement &logo, PxFindings *findings);
    void checkPlace(const PxSourceElement &logo, PxFindings *findings);

    const PxCheckedFile &m_file;
    PxListedProductTypes &m_types;
    PxThemeImageCheck &m_images;
    QHash<int, const PxSourceElement *> m_logos; ///< by product type
};
