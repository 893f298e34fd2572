#pragma once

#include "check/source/PxCheckedProduct.h"

/** Checks the categories to which the backgrounds of a product are limited. */
class PxBackgroundCategoryCheck
{
public:
    /** The product must outlive the check. */
    explicit PxBackgroundCategoryCheck(const PxCheckedProduct &product) : m_product(product) {}

    void run(PxFindings *findings) const;

private:
    const PxCheckedProduct &m_product;
};
