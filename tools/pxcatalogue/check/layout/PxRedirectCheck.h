#pragma once

#include "check/findings/PxReporter.h"
#include "check/rules/PxElementReading.h"
#include "check/source/PxCheckedProduct.h"

/** Checks the redirects: of pages when the product is turned, of content that is dropped. */
class PxRedirectCheck
{
public:
    /** The product must outlive the check. */
    PxRedirectCheck(const PxCheckedProduct &product, const PxReporter &report)
        : m_product(product)
        , m_report(report)
    {}

    void run();

private:
    /** Pages whose content goes to another one. */
    struct Range
    {
        const PxSourceElement *element;
        int first;
        int last;
        int target;
    };

    void checkRotation(const PxSourceElement &redirect) const;
    bool checkGiven(PxTag tag, const PxElementReading &redirect) const;
    void checkContent(const PxSourceElement &redirect, QVector<Range> *ranges) const;
    void checkIncomplete(const PxSourceElement &redirect) const;
    void checkOverlaps(const QVector<Range> &ranges) const;

    const PxCheckedProduct &m_product;
    const PxReporter m_report;
};
