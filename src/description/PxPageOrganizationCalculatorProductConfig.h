#pragma once

#include "PxProductPropertiesExport.h"

#include <PxPageOrganizationCalculator.h>

class PxProductTypeConfigRegistry;

/** Computes from the product descriptions how many pages a product may have, and in which steps. */
class PXPRODUCTPROPERTIES_EXPORT PxPageOrganizationCalculatorProductConfig
    : public PxPageOrganizationCalculator
{
public:
    ~PxPageOrganizationCalculatorProductConfig() override;

    /** The answer of the function below that is for the class of the product. */
    PxPageCountOrganization createPageOrganization(const PxProductType &type) const override;

    /** The registry of the current products. */
    PxProductTypeConfigRegistry *registry() const;
    /**
     * The page counts of the spine table; without spines the registry's limits, cast to unsigned.
     */
    PxPageCountOrganization availableNumOfPagesBook(const PxProductType &type) const;
    /** The page count of the binding: 12, 24 or 2, else 1. */
    PxPageCountOrganization availableNumOfPagesForCalendar(const PxProductType &type) const;
    /** The page count in the product file, for cards and decorations, too. */
    PxPageCountOrganization availableNumOfPagesForGift(const PxProductType &type) const;
};
