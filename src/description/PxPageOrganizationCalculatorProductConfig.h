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

    PxProductTypeConfigRegistry *registry() const;
    /** By the spines of the book. */
    PxPageCountOrganization availableNumOfPagesBook(const PxProductType &type) const;
    /** By the binding, one page by default. */
    PxPageCountOrganization availableNumOfPagesForCalendar(const PxProductType &type) const;
    /** For cards and decorations, too: as many as the product file says. */
    PxPageCountOrganization availableNumOfPagesForGift(const PxProductType &type) const;
};
