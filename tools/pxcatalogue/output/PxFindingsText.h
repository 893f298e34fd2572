#pragma once

#include "check/findings/PxCheckReport.h"
#include "writing/PxOutputText.h"

/** Findings as text: a line each, followed by what the library does now and a hint. */
class PxFindingsText
{
public:
    /**
     * The findings, then the tags that were not checked, then a line with the totals. If quiet,
     * only the findings.
     */
    static PxOutputText of(const PxCheckReport &report, bool isColoured, bool isQuiet);
};
