#pragma once

#include "PxProductPropertiesExport.h"

#include <QList>
#include <QSizeF>

class PxPageType;
class PxProductType;
class PxProductTypeDescription;

/** Answers questions about the page sizes of products from earlier catalogues. */
class PXPRODUCTPROPERTIES_EXPORT PxLegacyProductTypeConfig
{
public:
    virtual ~PxLegacyProductTypeConfig();

    /** Created on first use, from any thread; never destroyed. */
    static PxLegacyProductTypeConfig *instance();

    /** Never null; owned by the legacy registry. */
    const PxProductTypeDescription *description(const PxProductType &type) const;
    /** Whether pages lie side by side, not one above the other. */
    bool isHorizontal(const PxProductType &type) const;
    /** The page after trimming, in the unit of the product files. */
    QSizeF usablePrintSize(const PxProductType &type, const PxPageType &pageType,
                           int pageCount) const;
    /**
     * The size of all the pages together, side by side or one above the other. Pages without a size
     * are ignored.
     */
    QSizeF usableSize(const PxProductType &type, int pageCount,
                      const QList<PxPageType> &pageTypes) const;

private:
    PxLegacyProductTypeConfig() = default;
    Q_DISABLE_COPY(PxLegacyProductTypeConfig)
};
