#include "drawing/PxPageCounts.h"

#include <description/PxProductTypeDescription.h>

#include <PxProductType.h>

#include <algorithm>
#include <iterator>

int PxPageCounts::standard(const PxProductTypeDescription &product, const QList<int> &offered)
{
    const int soldWith = product.defaultSellingPages();
    return soldWith > 0 ? soldWith : offered.value(0, 1);
}

QList<int> PxPageCounts::nearest(const QList<int> &offered, int pageCount)
{
    const auto larger = std::lower_bound(offered.begin(), offered.end(), pageCount);
    QList<int> nearest;
    if (larger != offered.end() && *larger == pageCount)
        return nearest;
    if (larger != offered.begin())
        nearest.append(*std::prev(larger));
    if (larger != offered.end())
        nearest.append(*larger);
    return nearest;
}

QString PxPageCounts::notOffered(const PxProductType &type, const QList<int> &offered,
                                 int pageCount)
{
    const QList<int> nearest = PxPageCounts::nearest(offered, pageCount);
    QString text = type.productName() + QString(" is not offered with %1 ").arg(pageCount) +
                   (pageCount == 1 ? "page" : "pages");
    if (nearest.size() == 1)
        text += QString(", the nearest is %1").arg(nearest[0]);
    else if (!nearest.isEmpty())
        text += QString(", the nearest are %1 and %2")
                    .arg(QString::number(nearest[0]), QString::number(nearest[1]));
    return text;
}
