#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

#include <QSize>

/** Compares the page with what is taken from it, and with its cover. */
class PxMarginCheck
{
public:
    /** The product must outlive the check. */
    PxMarginCheck(const PxCheckedProduct &product, const PxReporter &report);

    void run();

private:
    void checkExceeding() const;
    void checkCover() const;
    void checkCoverWidth() const;
    bool hasSmallCover() const;

    const PxCheckedProduct &m_product;
    const PxReporter m_report;
    QSize m_size; // as the library reads it
};
