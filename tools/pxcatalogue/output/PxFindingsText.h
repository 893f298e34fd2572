#pragma once

#include "check/findings/PxCheckReport.h"
#include "writing/PxOutputText.h"

/** Findings as text: a line each, the line of the file, what the library does now, and a hint. */
class PxFindingsText
{
public:
    struct Style
    {
        bool isColoured = false;
        bool isQuiet = false;  ///< only the findings
        bool hasSource = true; ///< with the line of the file and a caret
        int width = 100;       ///< of such lines
    };

    /** The findings, then what was not checked or is gone, then a line with the totals. */
    static PxOutputText of(const PxCheckReport &report, const Style &style);
};
