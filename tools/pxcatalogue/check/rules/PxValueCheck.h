#pragma once

#include "check/findings/PxReporter.h"
#include "format/PxFormatRows.h"

/** Checks whether the library can read the value of an attribute. */
class PxValueCheck
{
public:
    /** All of them must outlive the check. */
    PxValueCheck(const PxSourceElement &element, const PxAttributeRow &row,
                 const PxSourceAttribute &attribute, const PxReporter &report)
        : m_element(element)
        , m_row(row)
        , m_attribute(attribute)
        , m_report(report)
    {}

    void run();

private:
    void checkInteger() const;
    void checkBoolean() const;

    const PxSourceElement &m_element;
    const PxAttributeRow &m_row;
    const PxSourceAttribute &m_attribute;
    const PxReporter m_report;
};
