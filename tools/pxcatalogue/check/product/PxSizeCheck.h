#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

#include <QSize>

/** Checks the size of the page, and whether orientation and size class go with it. */
class PxSizeCheck
{
public:
    /** The product must outlive the check. */
    PxSizeCheck(const PxCheckedProduct &product, const PxReporter &report);

    void run();
    /** Whether the page is ten times smaller or larger, each way, than its size class says. */
    bool isInOtherUnit() const;

private:
    void checkPresence() const;
    void checkArea() const;
    void checkShadowing() const;
    bool checkOrientation() const;
    void checkSpace() const;
    void addOtherUnit(int namedArea) const;

    const PxCheckedProduct &m_product;
    const PxReporter m_report;
    const PxSourceElement *m_usableSize; // null when there is none
    QSize m_size;                        // as the library reads it
};
