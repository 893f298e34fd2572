#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

/** Checks the name of the product and its style of alignment. */
class PxProductCheck
{
public:
    /** The product must outlive the check. */
    PxProductCheck(const PxCheckedProduct &product, const PxReporter &report)
        : m_product(product)
        , m_report(report)
    {}

    void run();
    /** Whether a file of this name lies in another directory, is hidden, or cannot be typed. */
    static bool isUnsafeForFile(const QString &name);

private:
    void checkName() const;
    void checkNameOfFile() const;
    void checkAlignmentStyle() const;

    const PxCheckedProduct &m_product;
    const PxReporter m_report;
};
