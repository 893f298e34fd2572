#pragma once

#include "check/source/PxPageEntries.h"

#include <QSize>

/** Checks what is added to the page and taken from it: margins, bleed, the size of covers. */
class PxMarginCheck
{
public:
    /** Both must outlive the check. */
    PxMarginCheck(const PxCheckedProduct &product, const PxPageEntries &pages);

    void run(PxFindings *findings) const;

private:
    void checkNegative(PxFindings *findings) const;
    void checkNegativeIndent(PxFindings *findings) const;
    void checkExceeding(PxFindings *findings) const;
    void checkCover(PxFindings *findings) const;
    void checkCoverWidth(PxFindings *findings) const;
    void addAdjustment(int extra, const QString &now, PxFindings *findings) const;
    bool hasSmallCover() const;

    const PxCheckedProduct &m_product;
    const PxPageEntries &m_pages;
    QSize m_size; // as the library takes it
};
