#pragma once

#include "check/findings/PxReporter.h"
#include "check/words/PxListedProductTypes.h"

/** Checks the logos of a theme: for which product each is, and where it goes. */
class PxThemeLogoCheck
{
public:
    /** `logos` is the element of that name. It and the types must outlive the check. */
    PxThemeLogoCheck(const PxSourceElement &logos, PxListedProductTypes &types,
                     const PxReporter &report)
        : m_element(logos)
        , m_types(types)
        , m_report(report)
    {}

    void run();

private:
    void checkProduct(const PxSourceElement &logo) const;
    void checkPlace(const PxSourceElement &logo) const;

    const PxSourceElement &m_element;
    PxListedProductTypes &m_types;
    const PxReporter m_report;
};
