#pragma once

#include "check/source/PxCheckedProduct.h"

class PxProductPages;

/** Checks lists of page numbers, and what production makes of them. */
class PxNumberListCheck
{
public:
    /** Both must outlive the check. */
    PxNumberListCheck(const PxCheckedProduct &product, const PxProductPages &pages)
        : m_product(product)
        , m_pages(pages)
    {}

    void run(PxFindings *findings) const;

private:
    /** Whether every part is a number. */
    bool checkParts(const PxSourceElement &list, PxFindings *findings) const;
    void checkNumbering(const PxSourceElement &list, PxFindings *findings) const;
    void checkExtraPage(const PxSourceElement &item, PxFindings *findings) const;

    const PxCheckedProduct &m_product;
    const PxProductPages &m_pages;
};
