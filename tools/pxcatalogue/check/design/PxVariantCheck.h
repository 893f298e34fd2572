#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

/** Checks the variants of a product: whether each is shown. */
class PxVariantCheck
{
public:
    /** The product must outlive the check. */
    PxVariantCheck(const PxCheckedProduct &product, const PxReporter &report)
        : m_product(product)
        , m_report(report)
    {}

    void run();

private:
    void checkEach(const PxSourceElement &list) const;
    bool isNamed(const QString &identifier) const;

    const PxCheckedProduct &m_product;
    const PxReporter m_report;
};
