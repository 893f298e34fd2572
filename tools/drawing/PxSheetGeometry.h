#pragma once

#include "drawing/PxDrawing.h"

namespace PxSheetGeometry {

/** How far marks, hooks and rings reach beyond what is printed, in annotation millimetres. */
constexpr double reach = 6;

/** The edge of a page at which it is bound. */
enum class Edge { Left, Right, Top, Bottom };
Edge innerEdge(const PxDrawnPage &page);

/**
 * Fills the layers that show the sheet itself, from the areas to the marks, with lines for this
 * annotation millimetre.
 */
void addTo(const PxDrawnSheet &sheet, double annotation, PxDrawingSheet &drawing);

} // namespace PxSheetGeometry
