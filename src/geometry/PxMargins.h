#pragma once

#include "geometry/PxMarginsImpl.h"

#include <QMetaType>
#include <QPoint>
#include <QSharedDataPointer>
#include <QSize>

class QDebug;

/**
 * The four margins of a page, in the unit of the product files; all 0 by default. Immutable: copies
 * share the record. Sums outside the int range are clamped to it.
 */
class PXPRODUCTPROPERTIES_EXPORT PxMargins
{
public:
    PxMargins();
    /** The order is top, bottom, left, right. */
    PxMargins(int top, int bottom, int left, int right);
    PxMargins(const PxMargins &other);
    PxMargins &operator=(const PxMargins &other);
    ~PxMargins();

    /** The margin at this edge; negative ones are kept as they are. */
    int top() const { return d->top(); }
    /** As top(). */
    int bottom() const { return d->bottom(); }
    /** As top(). */
    int left() const { return d->left(); }
    /** As top(). */
    int right() const { return d->right(); }
    /** The left margin as x, the top margin as y. */
    QPoint topLeft() const { return d->topLeft(); }
    /** The right margin as x, the bottom margin as y. */
    QPoint bottomRight() const { return d->bottomRight(); }
    /** The sum of left and right margin as width, and of top and bottom margin as height. */
    QSize totalMarginWH() const { return d->totalMarginWH(); }
    /** Whether all four margins are 0. */
    bool allNull() const { return d->allNull(); }

private:
    QExplicitlySharedDataPointer<const PxMarginsImpl> d;
};

Q_DECLARE_TYPEINFO(PxMargins, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(PxMargins)

PXPRODUCTPROPERTIES_EXPORT QDebug operator<<(QDebug debug, const PxMargins &margins);
