#pragma once

#include "drawing/PxSheetRoom.h"

/** What sheet of which product this is, at which scale. */
namespace PxSheetTitle {

/**
 * Adds the title block below `top`, between the left and the right edge of the drawing. Returns
 * where it ends.
 */
double addTo(PxSheetRoom &room, const PxDrawnProduct &product, double left, double width,
             double top);

} // namespace PxSheetTitle
