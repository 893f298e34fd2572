#pragma once

#include "check/findings/PxReporter.h"
#include "check/words/PxImageNames.h"
#include "check/words/PxListedProductTypes.h"

/** Checks a theme file by itself. */
class PxThemeFileCheck
{
public:
    /** The file has been read. Types and images must outlive the check. */
    PxThemeFileCheck(PxListedProductTypes &types, PxImageNames &images, const PxReporter &report)
        : m_types(types)
        , m_images(images)
        , m_report(report)
    {}

    void run();

private:
    void checkStrayNodes(const PxSourceElement &root) const;

    PxListedProductTypes &m_types;
    PxImageNames &m_images;
    const PxReporter m_report;
};
