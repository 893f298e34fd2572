#pragma once

#include "classification/PxProductClassification.h"

#include <QList>
#include <QString>
#include <QStringList>

/**
 * The classifications of products, with the questions that the shop asks about them.
 *
 * "First" refers to the order of the list that the constructor takes.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductClassificationManager
{
public:
    PxProductClassificationManager() = default;
    /** Keeps the list as it is, invalid classifications included. */
    explicit PxProductClassificationManager(const QList<PxProductClassification> &classifications);

    /** Every material once, in order of first occurrence. */
    QList<PxProductMaterial> materials() const;
    /** The size names of a material, every one once, in order of first occurrence. */
    QStringList sizes(const PxProductMaterial &material, bool metric) const;
    /** The size name of a product; empty if the product is not classified. */
    QString size(const PxProductType &type, bool metric) const;
    /** The material of a product; empty if the product is not classified. */
    PxProductMaterial material(const PxProductType &type) const;
    /** The first product of this material and size; type 0 if there is none. */
    PxProductType type(const PxProductMaterial &material, const QString &sizeName,
                       bool metric) const;
    /**
     * The product of a material whose area is closest to that of `type`; the first one of several.
     *
     * A product that is not classified counts as area 0. Type 0 if the material has no product
     * whose area differs by less than 1000000000.
     */
    PxProductType closestProduct(const PxProductType &type, const QString &materialName) const;

private:
    PxProductClassification find(const PxProductType &type) const;

    QList<PxProductClassification> m_classifications;
};
