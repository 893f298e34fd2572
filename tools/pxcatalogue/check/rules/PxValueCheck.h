#pragma once

#include "check/findings/PxFileFindings.h"
#include "format/PxFormatRows.h"

/** Checks whether the library can read the values of attributes: numbers and flags. */
class PxValueCheck
{
public:
    /** The findings must outlive the check. */
    explicit PxValueCheck(PxFileFindings &findings) : m_findings(findings) {}

    void check(const PxSourceElement &element, const PxAttributeRow &row,
               const PxSourceAttribute &attribute) const;

private:
    void checkInteger(const PxSourceElement &element, const PxAttributeRow &row,
                      const PxSourceAttribute &attribute) const;
    void checkBoolean(const PxSourceElement &element, const PxAttributeRow &row,
                      const PxSourceAttribute &attribute) const;

    PxFileFindings &m_findings;
};
