#pragma once

#include "check/findings/PxCheckReport.h"
#include "writing/PxOutputText.h"

/** Findings for people: a line for each, with what the library does and a hint below it. */
class PxFindingsText
{
public:
    PxFindingsText(const PxCheckReport &report, bool isColoured)
        : m_report(report)
        , m_isColoured(isColoured)
    {}

    /**
     * Below the findings what was not checked, and the numbers, which are the last line; when it is
     * quiet only the findings.
     */
    PxOutputText text(bool isQuiet) const;

private:
    void addFinding(PxOutputText *text, const PxFinding &finding) const;
    void addSummary(PxOutputText *text) const;

    const PxCheckReport &m_report;
    bool m_isColoured;
};
