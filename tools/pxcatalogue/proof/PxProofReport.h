#pragma once

class PxHtml;
class PxReport;

/** A report as HTML: a table for each of its sections. Empty ones are left out, like in its text.
 */
class PxProofReport
{
public:
    static void addTo(PxHtml *html, const PxReport &report);
};
