#pragma once

#include "drawing/PxSheetRoom.h"

/** Dimension lines around a sheet: widths above it, heights at its right, inner strips below. */
namespace PxSheetDimensions {

void addTo(PxSheetRoom &room);

} // namespace PxSheetDimensions
