#include "description/PxPageOrganizationCalculatorProductConfig.h"

#include "description/PxProductTypeConfigRegistry.h"

namespace {

PxPageCountOrganization fixedPageCount(unsigned pageCount)
{
    return PxPageCountOrganization(pageCount, pageCount, 0);
}

} // namespace

PxPageOrganizationCalculatorProductConfig::~PxPageOrganizationCalculatorProductConfig() = default;

PxPageCountOrganization PxPageOrganizationCalculatorProductConfig::createPageOrganization(
    const PxProductType &type) const
{
    switch (type.productClass()) {
    case PxProductClassBook:
        return availableNumOfPagesBook(type);
    case PxProductClassCalendar:
        return availableNumOfPagesForCalendar(type);
    case PxProductClassGift:
    case PxProductClassCard:
    case PxProductClassDecoration:
        return availableNumOfPagesForGift(type);
    default:
        return fixedPageCount(1);
    }
}

PxProductTypeConfigRegistry *PxPageOrganizationCalculatorProductConfig::registry() const
{
    return PxProductTypeConfigRegistry::instance();
}

PxPageCountOrganization PxPageOrganizationCalculatorProductConfig::availableNumOfPagesBook(
    const PxProductType &type) const
{
    const PxProductChecker *checker = registry();
    return PxPageCountOrganization(unsigned(checker->minPages(type)),
                                   unsigned(checker->maxPages(type)),
                                   unsigned(checker->pageIncrement(type)));
}

PxPageCountOrganization PxPageOrganizationCalculatorProductConfig::availableNumOfPagesForCalendar(
    const PxProductType &type) const
{
    return fixedPageCount(unsigned(registry()->binding(type).calendarPageCount()));
}

PxPageCountOrganization PxPageOrganizationCalculatorProductConfig::availableNumOfPagesForGift(
    const PxProductType &type) const
{
    return fixedPageCount(unsigned(registry()->explicitNumberOfNormalPages(type)));
}
