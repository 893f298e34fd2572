#pragma once

#include "check/source/PxPageEntries.h"

/** Checks what lies on and around the pages: redirects, surroundings, barcodes, production pages.
 */
class PxLayoutCheck
{
public:
    /** Both must outlive the check. */
    PxLayoutCheck(const PxCheckedProduct &product, const PxPageEntries &pages)
        : m_product(product)
        , m_pages(pages)
    {}

    void run(PxFindings *findings) const;

private:
    const PxCheckedProduct &m_product;
    const PxPageEntries &m_pages;
};
