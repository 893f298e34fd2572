#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

/** Checks size names and material. */
class PxClassificationCheck
{
public:
    /** The product must outlive the check. */
    PxClassificationCheck(const PxCheckedProduct &product, const PxReporter &report)
        : m_product(product)
        , m_report(report)
    {}

    void run();

private:
    const PxCheckedProduct &m_product;
    const PxReporter m_report;
};
