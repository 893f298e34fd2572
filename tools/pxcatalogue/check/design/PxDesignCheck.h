#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

/** Checks the variants of a product, its background categories, size names and material. */
class PxDesignCheck
{
public:
    /** The product must outlive the check. */
    PxDesignCheck(const PxCheckedProduct &product, const PxReporter &report)
        : m_product(product)
        , m_report(report)
    {}

    void run();

private:
    void checkVariants() const;
    void checkEachVariant(const PxSourceElement &list) const;
    bool isNamed(const QString &variant) const;
    QString hintForVariant(const QString &variant) const;
    void checkLabel(const PxSourceElement &list) const;
    void checkBackgroundCategories() const;
    void checkClassification() const;
    void checkUnit(const PxSourceElement &classification, const char *attribute) const;
    void checkMaterial(const PxSourceElement &classification) const;

    const PxCheckedProduct &m_product;
    const PxReporter m_report;
};
