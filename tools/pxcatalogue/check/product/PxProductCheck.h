#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"
#include "check/words/PxListedProductTypes.h"

/** Checks the name of the product and its style of alignment. */
class PxProductCheck
{
public:
    /** All of them must outlive the check. */
    PxProductCheck(const PxCheckedProduct &product, PxListedProductTypes &types,
                   const PxReporter &report)
        : m_product(product)
        , m_types(types)
        , m_report(report)
    {}

    void run();

private:
    void checkName() const;
    void checkNameOfFile() const;
    void checkAlignmentStyle() const;

    const PxCheckedProduct &m_product;
    PxListedProductTypes &m_types;
    const PxReporter m_report;
};
