#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxPageEntries.h"

/** Checks the list of pages. */
class PxPagesCheck
{
public:
    /** Both must outlive the check. */
    PxPagesCheck(const PxCheckedProduct &product, const PxPageEntries &pages,
                 const PxReporter &report)
        : m_product(product)
        , m_pages(pages)
        , m_report(report)
    {}

    void run();

private:
    void checkPresence() const;
    bool hasSeveralPages() const;
    QString nowWithoutPages() const;
    QString nowWithout(const PxPageEntry &entry) const;
    /** A book without pages that its page count could repeat. */
    bool isRangeMissing() const;
    void checkCount() const;
    void checkEntry(const PxPageEntry &entry) const;
    bool checkCoverPosition() const;
    void checkSpinePosition() const;
    void checkRange() const;

    const PxCheckedProduct &m_product;
    const PxPageEntries &m_pages;
    const PxReporter m_report;
};
