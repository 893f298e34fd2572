#pragma once

#include "check/findings/PxReporter.h"
#include "check/layout/PxProductPages.h"

/** Checks whether the product has the pages whose numbers belong together, as those of a list. */
class PxPageNumberCheck
{
public:
    /** All numbers, in any order. The pages must outlive the check. */
    PxPageNumberCheck(const PxProductPages &pages, const QVector<int> &numbers,
                      const PxReporter &report);

    /**
     * Whether the product has no such page with any page count, so that add() should be called.
     * False if its pages are not known, and for -1, which stands for no page.
     */
    bool isMissing(int number) const
    {
        return m_pages.isKnown() && number != -1 && (number < 0 || number > m_pages.lastPage());
    }
    /** The finding for a missing one of the numbers. */
    PxAddedFinding add(int number, const PxSourceRange &range) const;
    /** Whether the author counted from 1: all numbers are pages if they are one smaller. */
    bool areFromOne() const { return m_areFromOne; }
    /** The number, or one less if the author counted from 1. */
    int fromZero(int number) const { return m_areFromOne && number != -1 ? number - 1 : number; }

private:
    const PxProductPages &m_pages;
    const PxReporter m_report;
    bool m_areFromOne;
};
