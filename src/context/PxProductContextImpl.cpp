#include "context/PxProductContextImpl.h"

#include "description/PxProductTypeConfigRegistry.h"

PxProductContextImpl::PxProductContextImpl(const PxProductType &type, const PxTheme &contextTheme)
    : productType(type)
    , theme(contextTheme)
    , description(PxProductTypeConfigRegistry::instance()->description(type))
{}

PxProductContextImpl::PxProductContextImpl(const PxProductContextImpl &other) = default;
PxProductContextImpl::~PxProductContextImpl() = default;

void PxProductContextImpl::setProductType(const PxProductType &type)
{
    productType = type;
    description = PxProductTypeConfigRegistry::instance()->description(type);
}

bool PxProductContextImpl::operator==(const PxProductContextImpl &other) const
{
    return productType == other.productType && theme == other.theme;
}
