#include "description/PxLegacyProductTypeConfig.h"

#include "description/PxProductTypeConfigRegistry.h"

#include <PxCreateOnce.h>

#include <QAtomicPointer>
#include <QMutex>

PxLegacyProductTypeConfig::~PxLegacyProductTypeConfig() = default;

PxLegacyProductTypeConfig *PxLegacyProductTypeConfig::instance()
{
    static QAtomicPointer<PxLegacyProductTypeConfig> ourInstance;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex, [] { return new PxLegacyProductTypeConfig; });
}

const PxProductTypeDescription *PxLegacyProductTypeConfig::description(
    const PxProductType &type) const
{
    return PxProductTypeConfigRegistry::legacyInstance()->description(type);
}

bool PxLegacyProductTypeConfig::isHorizontal(const PxProductType &type) const
{
    return description(type)->horizontalPages();
}

QSizeF PxLegacyProductTypeConfig::usablePrintSize(const PxProductType &type,
                                                  const PxPageType &pageType, int pageCount) const
{
    return description(type)->usablePrintSize(pageType, pageCount);
}

QSizeF PxLegacyProductTypeConfig::usableSize(const PxProductType &type, int pageCount,
                                             const QList<PxPageType> &pageTypes) const
{
    const bool horizontal = isHorizontal(type);
    QSizeF total(0, 0);
    for (const PxPageType &pageType : pageTypes) {
        const QSizeF size = usablePrintSize(type, pageType, pageCount);
        if (size.width() < 0 || size.height() < 0)
            continue;
        if (horizontal)
            total = QSizeF(total.width() + size.width(), qMax(total.height(), size.height()));
        else
            total = QSizeF(qMax(total.width(), size.width()), total.height() + size.height());
    }
    return total;
}
