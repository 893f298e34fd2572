#pragma once

#include "check/source/PxCheckedProduct.h"

/** Checks the variants of a product: whether each is shown. */
class PxVariantCheck
{
public:
    /** The product must outlive the check. */
    explicit PxVariantCheck(const PxCheckedProduct &product) : m_product(product) {}

    void run(PxFindings *findings) const;

private:
    void checkEach(const PxSourceElement &list, PxFindings *findings) const;
    bool isNamed(const QString &identifier) const;

    const PxCheckedProduct &m_product;
};
