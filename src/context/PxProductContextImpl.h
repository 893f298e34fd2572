#pragma once

#include "themes/PxTheme.h"

#include <PxProductType.h>

#include <QSharedData>

class PxProductTypeDescription;

/** The record that copies of a PxProductContext share; applications use PxProductContext. */
class PXPRODUCTPROPERTIES_EXPORT PxProductContextImpl : public QSharedData
{
public:
    PxProductContextImpl(const PxProductType &type, const PxTheme &theme);
    PxProductContextImpl(const PxProductContextImpl &other);
    PxProductContextImpl &operator=(const PxProductContextImpl &other) = delete;
    virtual ~PxProductContextImpl();

    void setProductType(const PxProductType &type);

    bool operator==(const PxProductContextImpl &other) const;

    PxProductType productType;
    PxTheme theme;
    /** The registry's description of the product type; never null, not owned. */
    const PxProductTypeDescription *description;
};
