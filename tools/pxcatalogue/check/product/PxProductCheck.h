#pragma once

#include "check/source/PxPageEntries.h"

/** Checks the product as a whole: its name, counts, sizes, page counts and spines, and its pages.
 */
class PxProductCheck
{
public:
    /** Both must outlive the check. `areTypesChecked`: producttypes.xml is checked, too. */
    PxProductCheck(const PxCheckedProduct &product, const PxPageEntries &pages,
                   bool areTypesChecked)
        : m_product(product)
        , m_pages(pages)
        , m_areTypesChecked(areTypesChecked)
    {}

    void run(PxFindings *findings) const;

private:
    void checkName(PxFindings *findings) const;
    void checkNameOfFile(PxFindings *findings) const;
    void checkCounts(PxFindings *findings) const;
    void checkAlignmentStyle(PxFindings *findings) const;

    const PxCheckedProduct &m_product;
    const PxPageEntries &m_pages;
    bool m_areTypesChecked;
};
