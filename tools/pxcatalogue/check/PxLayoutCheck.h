#pragma once

#include "check/PxCheckedProduct.h"

/** Checks what lies on and around the pages: redirects, surroundings, barcodes, production pages.
 */
class PxLayoutCheck
{
public:
    /** The product must outlive the check. */
    explicit PxLayoutCheck(const PxCheckedProduct &product) : m_product(product) {}

    void run(PxFindings *findings) const;

private:
    const PxCheckedProduct &m_product;
};
