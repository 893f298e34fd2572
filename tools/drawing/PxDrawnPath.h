#pragma once

#include "drawing/PxDrawnShape.h"

#include <QRectF>
#include <QVector>

/** The steps of paths that are drawn in one piece. */
namespace PxDrawnPath {

using Steps = QVector<PxDrawnStep>;

/** Appends a line of its own. */
void addLine(Steps *steps, const QPointF &from, const QPointF &to);
/** Appends an arc of its own, clockwise. */
void addArc(Steps *steps, const QPointF &from, const QPointF &to, double radius);
/** Appends a closed line through the points, each once. */
void addContour(Steps *steps, const QVector<QPointF> &points);
/**
 * Appends lines at 45 degrees that fill the area. Those of areas side by side continue each other
 * if their origins, of the coordinates, are the same point of the sheet.
 */
void addHatch(Steps *steps, const QRectF &area, double distance, const QPointF &origin);
/** Both diagonals. */
Steps diagonals(const QRectF &rect);
/** The outline of areas that stand side by side from left to right; those of no size are none. */
Steps outline(const QVector<QRectF> &areas);
/** Bars that fill the area; they encode nothing. */
Steps bars(const QRectF &area);

} // namespace PxDrawnPath
