#pragma once

#include "geometry/PxMargins.h"

#include <PxOrientation.h>

#include <QPoint>
#include <QSize>

class QDebug;

/** The size of one kind of page and the margins around it, in the unit of the product files. */
class PXPRODUCTPROPERTIES_EXPORT PxPageSizeSpec
{
public:
    /** Everything is kept as it is, even sizes and margins below 0. */
    PxPageSizeSpec(const QSize &usableSize, const PxMargins &bleedMargins,
                   const PxMargins &safetyMargins, const PxOrientation &orientation,
                   int horizontalClampExtra);
    /**
     * Copies. Every hundredth copy in the process is logged at debug level, to show how many there
     * are.
     */
    PxPageSizeSpec(const PxPageSizeSpec &other);
    PxPageSizeSpec &operator=(const PxPageSizeSpec &other);
    ~PxPageSizeSpec();

    /** The page after trimming, without bleed. */
    QSize usableSize() const { return m_usableSize; }
    /** What is printed beyond the usable size, at each edge, and then cut off. */
    PxMargins bleedMargins() const { return m_bleedMargins; }
    /** The margins inside the page that designs keep free. */
    PxMargins safetyMargins() const { return m_safetyMargins; }
    /** The orientation of the product. */
    PxOrientation orientation() const { return m_orientation; }
    /** The part of the width that a clamp binding takes; no size includes it. */
    int horizontalClampExtra() const { return m_horizontalClampExtra; }

    /** The usable size with the bleed at all edges. */
    QSize totalSize() const;
    /** The top left corner of the usable area within the total size. */
    QPoint topLeftOffsetOfUsablePrintArea() const { return m_bleedMargins.topLeft(); }

private:
    QSize m_usableSize;
    PxMargins m_bleedMargins;
    PxMargins m_safetyMargins;
    PxOrientation m_orientation;
    int m_horizontalClampExtra;
};

Q_DECLARE_TYPEINFO(PxPageSizeSpec, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxPageSizeSpec &size);
