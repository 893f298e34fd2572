#pragma once

#include "check/PxCheckedProduct.h"

/** Checks the product as a whole: its name, counts, sizes, page counts and spines, and its pages.
 */
class PxProductCheck
{
public:
    /** The product must outlive the check. */
    explicit PxProductCheck(const PxCheckedProduct &product) : m_product(product) {}

    void run(PxFindings *findings) const;

private:
    void checkName(PxFindings *findings) const;
    void checkNameOfFile(PxFindings *findings) const;
    void checkCounts(PxFindings *findings) const;
    void checkAlignmentStyle(PxFindings *findings) const;

    const PxCheckedProduct &m_product;
};
