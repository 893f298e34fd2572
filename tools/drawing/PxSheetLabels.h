#pragma once

#include "drawing/PxSheetRoom.h"

/** What is written beside the lines and on the pages of a sheet. */
namespace PxSheetLabels {

void addTo(PxSheetRoom &room);

/** A letter in a circle. */
PxDrawnShape key(const QString &letter, const QPointF &center, double annotation);
/** The radius of that circle, in annotation millimetres. */
constexpr double keyRadius = 2.3;

} // namespace PxSheetLabels
