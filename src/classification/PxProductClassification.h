#pragma once

#include "values/PxProductMaterial.h"

#include <PxProductType.h>

#include <QString>

class QDebug;
class QDomElement;

/** The material and the size by which a product is grouped in the shop. */
class PXPRODUCTPROPERTIES_EXPORT PxProductClassification
{
public:
    /** An invalid classification, of no product. */
    PxProductClassification() = default;
    /** Reads "name", "classification" and "usablesize" of the product element. */
    explicit PxProductClassification(const QDomElement &product);

    /** The product type is known. */
    bool isValid() const { return m_productType.isValid(); }

    /** The classified product; the unknown type 0 by default. */
    PxProductType productType() const { return m_productType; }
    /** The material as the file states it; empty by default. */
    PxProductMaterial material() const { return m_material; }
    /**
     * Usable width times usable height, in square units of the product files, clamped to the int
     * range.
     */
    int areaSize() const { return m_areaSize; }
    /** The size as the file states it, in centimetres if `metric`, else in inches. */
    QString sizeName(bool metric) const { return metric ? m_sizeNameCm : m_sizeNameInch; }
    /** The same with a blank and the translated unit behind it. */
    QString sizeNameWithUnit(bool metric) const;

private:
    QString m_sizeNameCm;
    QString m_sizeNameInch;
    PxProductType m_productType;
    PxProductMaterial m_material;
    int m_areaSize = 0;
};

Q_DECLARE_TYPEINFO(PxProductClassification, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug,
                                             const PxProductClassification &classification);
