#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

/** Checks the list of pages. */
class PxPagesCheck
{
public:
    /** The product must outlive the check. */
    PxPagesCheck(const PxCheckedProduct &product, const PxReporter &report)
        : m_product(product)
        , m_report(report)
    {}

    void run();

private:
    void checkPresence() const;
    bool hasSeveralPages() const;
    QString nowWithoutPages() const;
    QString nowWithout(const PxPageEntry &entry) const;
    void checkCount() const;
    void checkEntry(const PxPageEntry &entry) const;
    bool checkCoverPosition() const;
    void checkSpinePosition() const;
    void checkRange() const;
    void addShortCalendar() const;

    const PxCheckedProduct &m_product;
    const PxReporter m_report;
};
