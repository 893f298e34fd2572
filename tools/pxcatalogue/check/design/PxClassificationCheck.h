#pragma once

#include "check/source/PxCheckedProduct.h"

/** Checks size names and material. */
class PxClassificationCheck
{
public:
    /** The product must outlive the check. */
    explicit PxClassificationCheck(const PxCheckedProduct &product) : m_product(product) {}

    void run(PxFindings *findings) const;

private:
    const PxCheckedProduct &m_product;
};
