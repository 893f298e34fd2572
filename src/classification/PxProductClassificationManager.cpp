#include "classification/PxProductClassificationManager.h"

#include <algorithm>

PxProductClassificationManager::PxProductClassificationManager(
    const QList<PxProductClassification> &classifications)
    : m_classifications(classifications)
{}

QList<PxProductMaterial> PxProductClassificationManager::materials() const
{
    QList<PxProductMaterial> materials;
    for (const PxProductClassification &entry : m_classifications) {
        if (!materials.contains(entry.material()))
            materials.append(entry.material());
    }
    return materials;
}

QStringList PxProductClassificationManager::sizes(const PxProductMaterial &material,
                                                  bool metric) const
{
    QStringList sizes;
    for (const PxProductClassification &entry : m_classifications) {
        if (entry.material() == material && !sizes.contains(entry.sizeName(metric)))
            sizes.append(entry.sizeName(metric));
    }
    return sizes;
}

QString PxProductClassificationManager::size(const PxProductType &type, bool metric) const
{
    return find(type).sizeName(metric);
}

PxProductMaterial PxProductClassificationManager::material(const PxProductType &type) const
{
    return find(type).material();
}

PxProductType PxProductClassificationManager::type(const PxProductMaterial &material,
                                                   const QString &sizeName, bool metric) const
{
    for (const PxProductClassification &entry : m_classifications) {
        if (entry.material() == material && entry.sizeName(metric) == sizeName)
            return entry.productType();
    }
    return PxProductType();
}

PxProductType PxProductClassificationManager::closestProduct(const PxProductType &type,
                                                             const QString &materialName) const
{
    qint64 referenceArea = 0;
    for (const PxProductClassification &entry : m_classifications) {
        if (entry.productType() == type)
            referenceArea = entry.areaSize();
    }

    const PxProductMaterial material(materialName);
    PxProductType closest;
    qint64 smallestDistance = 1000000000;
    for (const PxProductClassification &entry : m_classifications) {
        if (entry.material() != material)
            continue;
        const qint64 distance = qAbs(entry.areaSize() - referenceArea);
        if (distance < smallestDistance) {
            smallestDistance = distance;
            closest = entry.productType();
        }
    }
    return closest;
}

PxProductClassification PxProductClassificationManager::find(const PxProductType &type) const
{
    const auto found = std::find_if(
        m_classifications.begin(), m_classifications.end(),
        [&type](const PxProductClassification &entry) { return entry.productType() == type; });
    return found == m_classifications.end() ? PxProductClassification() : *found;
}
