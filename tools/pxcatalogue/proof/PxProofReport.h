#pragma once

#include "report/PxReport.h"

class PxHtml;

/** A report as HTML: a table for each of its sections, with where each value comes from. */
class PxProofReport
{
public:
    /** Empty sections are left out, as in the text of a report. */
    static void addTo(PxHtml *html, const PxReport &report);
    /** Without headings. */
    static void addTables(PxHtml *html, const PxReport &report);
};
