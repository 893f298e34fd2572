#pragma once

#include "drawing/PxDrawnShape.h"

/** What is drawn, in the order of the legend. */
enum class PxDrawnItem {
    Bleed,
    BleedArea,
    Trim,
    Safe,
    Round,
    Spine,
    SpineText,
    Fold,
    FoldMargin,
    Clamp,
    Surrounding,
    SurroundingBelow,
    Barcode,
    PageNumber,
    Spiral,
    Hook,
    Hole,
    Marks
};

/** How a kind of thing is drawn, wherever it is: on the sheet and in the legend. */
namespace PxDrawnStyle {

/** Its line, with widths and dashes for this annotation millimetre. */
PxDrawnLine line(PxDrawnItem item, double annotation);
/** The line of the diagonals of a surrounding. */
PxDrawnLine diagonals(double annotation);
/** Invalid for none. */
QColor fill(PxDrawnItem item);
/** The name of the item in "data-item" and "data-note": "bleed-area". */
QByteArray key(PxDrawnItem item);

} // namespace PxDrawnStyle
