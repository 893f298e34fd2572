#pragma once

#include "drawing/PxDrawnStyle.h"

#include <QVector>

/** How an item looks, in a small box. */
QVector<PxDrawnShape> pxLegendSwatch(PxDrawnItem item, const QRectF &box, double annotation);
