#pragma once

#include "check/source/PxCheckedProduct.h"

#include <QSize>

/** Checks the size of the page, and what is said about it beside: orientation and size class. */
class PxSizeCheck
{
public:
    /** The product must outlive the check. */
    explicit PxSizeCheck(const PxCheckedProduct &product);

    void run(PxFindings *findings) const;
    /** Whether the page is a hundred times smaller or larger than its size class says. */
    static bool isInOtherUnit(const PxProductTypeDescription &product);

private:
    void checkPresence(PxFindings *findings) const;
    void checkArea(PxFindings *findings) const;
    void checkShadowing(PxFindings *findings) const;
    bool checkOrientation(PxFindings *findings) const;
    void checkSpace(PxFindings *findings) const;
    void addOtherUnit(int namedArea, PxFindings *findings) const;

    const PxCheckedProduct &m_product;
    const PxSourceElement *m_usableSize; // null when there is none
    QSize m_size;                        // as the library takes it
};
