#pragma once

#include "PxPageCountOrganization.h"

class PxProductType;

/** Knows how many pages each product type may have. Asked from any thread. */
class PXPRODUCTBASE_EXPORT PxPageOrganizationCalculator
{
public:
    PxPageOrganizationCalculator() = default;
    PxPageOrganizationCalculator(const PxPageOrganizationCalculator &other) = default;
    PxPageOrganizationCalculator &operator=(const PxPageOrganizationCalculator &other) = default;
    virtual ~PxPageOrganizationCalculator();

    virtual PxPageCountOrganization createPageOrganization(const PxProductType &type) const = 0;
};
