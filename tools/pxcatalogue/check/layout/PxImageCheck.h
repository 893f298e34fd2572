#pragma once

#include "check/findings/PxReporter.h"
#include "check/words/PxImageNames.h"

/** Checks whether the image of an element is there. */
class PxImageCheck
{
public:
    /**
     * `name` is what the library makes of the attribute "image". The element and the other images
     * must outlive the check.
     */
    PxImageCheck(const PxSourceElement &element, const QString &name, PxImageNames &images,
                 const PxReporter &report)
        : m_element(element)
        , m_name(name)
        , m_images(images)
        , m_report(report)
    {}

    void run();

private:
    const PxSourceElement &m_element;
    const QString m_name;
    PxImageNames &m_images;
    const PxReporter m_report;
};
