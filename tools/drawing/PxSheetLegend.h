#pragma once

#include "drawing/PxSheetRoom.h"

/** What the lines of a sheet mean, and what is odd about it. */
namespace PxSheetLegend {

/** Adds rows and notes below `top`, between the left and the right edge of the drawing. */
void addTo(PxSheetRoom &room, double left, double width, double top);

} // namespace PxSheetLegend
