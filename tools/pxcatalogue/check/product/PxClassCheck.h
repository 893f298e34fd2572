#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

/** Checks whether binding and page counts go with the class of the product. */
class PxClassCheck
{
public:
    /** The product must outlive the check. */
    PxClassCheck(const PxCheckedProduct &product, const PxReporter &report)
        : m_product(product)
        , m_report(report)
    {}

    void run();

private:
    bool checkBinding() const;
    void addBinding(PxTag tag, const QString &ofClass, const QString &now, int allowed) const;
    void checkPageCount() const;
    void addOtherThanList() const;
    PxAddedFinding addIgnored(const char *message, const QString &now) const;
    bool isInList(int pageCount) const;
    void checkPieces() const;
    void checkSellingPages() const;

    const PxCheckedProduct &m_product;
    const PxReporter m_report;
};
