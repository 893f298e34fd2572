#pragma once

#include "themes/PxTheme.h"

#include <PxProductType.h>

#include <QSharedData>

class PxProductTypeDescription;

/** The record that copies of a PxProductContext share; applications use PxProductContext. */
class PXPRODUCTPROPERTIES_EXPORT PxProductContextImpl : public QSharedData
{
public:
    /** Looks the description up in PxProductTypeConfigRegistry::instance(). */
    PxProductContextImpl(const PxProductType &type, const PxTheme &theme);
    PxProductContextImpl(const PxProductContextImpl &other);
    PxProductContextImpl &operator=(const PxProductContextImpl &other) = delete;
    virtual ~PxProductContextImpl();

    /** Changes the type and its description. */
    void setProductType(const PxProductType &type);

    bool operator==(const PxProductContextImpl &other) const;

    /** As PxProductContext::productType(). */
    PxProductType productType;
    /** As PxProductContext::theme(). */
    PxTheme theme;
    /** The registry's description of the product type; never null, not owned. */
    const PxProductTypeDescription *description;
};
