#pragma once

#include "classification/PxProductClassification.h"

#include <QList>
#include <QString>
#include <QStringList>

/**
 * The classifications of products, and what the shop asks about them.
 *
 * "First" is the order of the list that it was given.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductClassificationManager
{
public:
    PxProductClassificationManager() = default;
    explicit PxProductClassificationManager(const QList<PxProductClassification> &classifications);

    /** Each material once, in order of first occurrence. */
    QList<PxProductMaterial> materials() const;
    /** The size names of a material, each once, in order of first occurrence. */
    QStringList sizes(const PxProductMaterial &material, bool metric) const;
    /** Empty for a product that is not classified. */
    QString size(const PxProductType &type, bool metric) const;
    /** An empty material for a product that is not classified. */
    PxProductMaterial material(const PxProductType &type) const;
    /** The first product of this material and size; type 0 when there is none. */
    PxProductType type(const PxProductMaterial &material, const QString &sizeName,
                       bool metric) const;
    /**
     * The product of a material whose area comes closest to that of `type`, the first of equals.
     *
     * A product that is not classified counts as area 0. Type 0 when the material has no product
     * whose area is less than 1000000000 away.
     */
    PxProductType closestProduct(const PxProductType &type, const QString &materialName) const;

private:
    PxProductClassification find(const PxProductType &type) const;

    QList<PxProductClassification> m_classifications;
};
