#pragma once

#include "PxPageCountOrganization.h"

class PxProductType;

/** Computes how many pages a product type may have. Called from any thread. */
class PXPRODUCTBASE_EXPORT PxPageOrganizationCalculator
{
public:
    PxPageOrganizationCalculator() = default;
    PxPageOrganizationCalculator(const PxPageOrganizationCalculator &other) = default;
    PxPageOrganizationCalculator &operator=(const PxPageOrganizationCalculator &other) = default;
    virtual ~PxPageOrganizationCalculator();

    /** The page counts of a product, also of one that is not known. */
    virtual PxPageCountOrganization createPageOrganization(const PxProductType &type) const = 0;
};
