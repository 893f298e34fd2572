#pragma once

#include "check/PxCheckReport.h"

/** Findings for people: a line for each, with what the library does and a hint below it. */
class PxFindingsText
{
public:
    PxFindingsText(const PxCheckReport &report, bool isColoured)
        : m_report(report)
        , m_isColoured(isColoured)
    {}

    QString findings() const;
    /** What was not checked, and the numbers, which are the last line. */
    QString summary() const;

private:
    QString finding(const PxFinding &finding) const;

    const PxCheckReport &m_report;
    bool m_isColoured;
};
