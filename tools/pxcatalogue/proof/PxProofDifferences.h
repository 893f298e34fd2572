#pragma once

#include "proof/PxProofCatalogue.h"

class PxHtml;

/** What changed since an earlier catalogue, as HTML. */
class PxProofDifferences
{
public:
    /** Of one product or theme. */
    static void addTo(PxHtml *html, const PxProofChanges &changes);
    /** Of the whole catalogue, with links to the pages of what changed. */
    static void addSummary(PxHtml *html, const PxProofCatalogue &catalogue);
};
