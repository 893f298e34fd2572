#pragma once

#include "check/source/PxCheckedProduct.h"

/** Checks which pages lead to which: when the product is turned, when content is dropped. */
class PxRedirectCheck
{
public:
    /** The product must outlive the check. */
    explicit PxRedirectCheck(const PxCheckedProduct &product) : m_product(product) {}

    void run(PxFindings *findings) const;

private:
    /** Pages whose content goes to another one. */
    struct Range
    {
        const PxSourceElement *element;
        int first;
        int last;
        int target;
    };

    void checkRotation(const PxSourceElement &redirect, PxFindings *findings) const;
    void checkContent(const PxSourceElement &redirect, QVector<Range> *ranges,
                      PxFindings *findings) const;
    void checkIncomplete(const PxSourceElement &redirect, PxFindings *findings) const;
    void checkOverlaps(const QVector<Range> &ranges, PxFindings *findings) const;

    const PxCheckedProduct &m_product;
};
