#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

/** Checks the categories to which the backgrounds of a product are limited. */
class PxBackgroundCategoryCheck
{
public:
    /** The product must outlive the check. */
    PxBackgroundCategoryCheck(const PxCheckedProduct &product, const PxReporter &report)
        : m_product(product)
        , m_report(report)
    {}

    void run();

private:
    const PxCheckedProduct &m_product;
    const PxReporter m_report;
};
