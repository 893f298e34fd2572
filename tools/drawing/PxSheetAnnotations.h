#pragma once

#include "drawing/PxDrawing.h"

/** What is written on a sheet and around it, and the canvas that all of it needs. */
namespace PxSheetAnnotations {

/**
 * Adds dimensions, labels, legend, title block and background, as far as `layers` has them, to a
 * sheet that has its geometric layers, and sets its canvas. Legend and labels tell what is shown.
 */
void addTo(PxDrawingSheet &drawing, const PxDrawnProduct &product, double annotation,
           PxDrawnLayers layers);

} // namespace PxSheetAnnotations
