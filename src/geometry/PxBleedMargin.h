#pragma once

#include "PxProductPropertiesExport.h"

#include <QtGlobal>

class QDebug;

/**
 * The strip printed around the trimmed page, so that a skewed cut shows no white edge.
 *
 * Lengths are in the unit of the product files. 0 means no bleed; negative lengths are kept as they
 * are.
 */
class PXPRODUCTPROPERTIES_EXPORT PxBleedMargin
{
public:
    /** The bleed at each vertical edge, then that at each horizontal one. */
    PxBleedMargin(int horizontal, int vertical) : m_horizontal(horizontal), m_vertical(vertical) {}

    /** The bleed at the left edge, and also at the right edge. */
    int horizontal() const { return m_horizontal; }
    /** The bleed at the top edge, and also at the bottom edge. */
    int vertical() const { return m_vertical; }

    bool operator==(const PxBleedMargin &other) const;
    bool operator!=(const PxBleedMargin &other) const { return !(*this == other); }

private:
    int m_horizontal;
    int m_vertical;
};

Q_DECLARE_TYPEINFO(PxBleedMargin, Q_MOVABLE_TYPE);

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxBleedMargin &margin);
