#pragma once

#include "check/source/PxPageEntries.h"

#include <QMap>

/** Checks the table of page counts and spines, and what depends on it. */
class PxSpineCheck
{
public:
    /** Both must outlive the check. */
    PxSpineCheck(const PxCheckedProduct &product, const PxPageEntries &pages);

    void run(PxFindings *findings);

private:
    void readTable(PxFindings *findings);
    void readPageCount(const PxSourceElement &spine, PxFindings *findings);
    void addTwice(const PxSourceElement &spine, int pageCount, PxFindings *findings) const;
    void checkPresence(PxFindings *findings) const;
    void checkLength(PxFindings *findings) const;
    void checkSteps(PxFindings *findings) const;
    QString nowWithoutSpine(int smaller, int larger) const;
    void checkLastStep(int usual, PxFindings *findings) const;
    int usualStep() const;
    void checkWidths(PxFindings *findings) const;
    void checkTextHeights(PxFindings *findings) const;
    void checkSellingPages(PxFindings *findings) const;
    void checkSpinePage(PxFindings *findings) const;
    bool hasWidth() const;

    const PxCheckedProduct &m_product;
    const PxPageEntries &m_pages;
    const PxSourceElement *m_table; // null when there is none
    int m_rowCount = 0;
    /** The rows that count, by page count. */
    QMap<int, const PxSourceElement *> m_spines;
    bool m_isComplete = true; // the page count of every row is known and its own
};
