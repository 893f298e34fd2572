#pragma once

#include "check/source/PxPageEntries.h"

/** Checks the list of pages. */
class PxPagesCheck
{
public:
    /** Both must outlive the check. */
    PxPagesCheck(const PxCheckedProduct &product, const PxPageEntries &pages)
        : m_product(product)
        , m_pages(pages)
    {}

    void run(PxFindings *findings) const;

private:
    void checkPresence(PxFindings *findings) const;
    bool hasSeveralPages() const;
    QString nowWithoutPages() const;
    QString nowWithout(const PxPageEntry &entry) const;
    /** A book has no page count then. */
    bool isRangeMissing() const;
    void checkCount(PxFindings *findings) const;
    void checkEntry(const PxPageEntry &entry, PxFindings *findings) const;
    bool checkCoverPosition(PxFindings *findings) const;
    void checkSpinePosition(PxFindings *findings) const;
    void checkRange(PxFindings *findings) const;

    const PxCheckedProduct &m_product;
    const PxPageEntries &m_pages;
};
