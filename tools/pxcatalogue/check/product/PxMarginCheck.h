#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxPageEntries.h"

#include <QSize>

/** Compares the page with what is taken from it, and with its cover. */
class PxMarginCheck
{
public:
    /** Both must outlive the check. */
    PxMarginCheck(const PxCheckedProduct &product, const PxPageEntries &pages,
                  const PxReporter &report);

    void run();

private:
    void checkExceeding() const;
    void checkCover() const;
    void checkCoverWidth() const;
    void addAdjustment(int extra, const QString &now) const;
    bool hasSmallCover() const;

    const PxCheckedProduct &m_product;
    const PxPageEntries &m_pages;
    const PxReporter m_report;
    QSize m_size; // as the library reads it
};
