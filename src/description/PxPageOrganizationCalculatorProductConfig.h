#pragma once

#include "PxProductPropertiesExport.h"

#include <PxPageOrganizationCalculator.h>

class PxProductTypeConfigRegistry;

/** Tells from the product descriptions how many pages a product may have, and in which steps. */
class PXPRODUCTPROPERTIES_EXPORT PxPageOrganizationCalculatorProductConfig
    : public PxPageOrganizationCalculator
{
public:
    ~PxPageOrganizationCalculatorProductConfig() override;

    PxPageCountOrganization createPageOrganization(const PxProductType &type) const override;

    /** The registry of the current products. */
    PxProductTypeConfigRegistry *registry() const;
    /** By the spines of the book; a book without them has the registry's limits, cast to unsigned.
     */
    PxPageCountOrganization availableNumOfPagesBook(const PxProductType &type) const;
    /** By the binding: 12, 24 or 2 pages, else 1. */
    PxPageCountOrganization availableNumOfPagesForCalendar(const PxProductType &type) const;
    /** For cards and decorations, too: as many as the product file says. */
    PxPageCountOrganization availableNumOfPagesForGift(const PxProductType &type) const;
};
