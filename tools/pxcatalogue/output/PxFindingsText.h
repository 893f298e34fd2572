#pragma once

#include "check/findings/PxCheckReport.h"
#include "writing/PxOutputText.h"

/** Findings for people: a line for each, with what the library does and a hint below it. */
class PxFindingsText
{
public:
    /**
     * Below the findings what was not checked, and the numbers, which are the last line; when it is
     * quiet only the findings.
     */
    static PxOutputText of(const PxCheckReport &report, bool isColoured, bool isQuiet);
};
