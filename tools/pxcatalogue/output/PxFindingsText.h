#pragma once

#include "check/findings/PxCheckReport.h"
#include "writing/PxOutputText.h"

/** Findings as text: a line for each, with what the library does and a hint below it. */
class PxFindingsText
{
public:
    /**
     * The findings, then the tags that were not checked, then a line of numbers. If quiet, only the
     * findings.
     */
    static PxOutputText of(const PxCheckReport &report, bool isColoured, bool isQuiet);
};
