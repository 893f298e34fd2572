#pragma once

#include "check/source/PxPlace.h"
#include "check/source/PxSourceLines.h"

/** The line of a file in which a place begins, with a caret under the place, as text. */
struct PxSourceFrame
{
    QString source; ///< with the number of the line
    QString beforeCaret;
    QString caret; ///< to print in a colour

    /**
     * Cut to `width` around the place. Tabs become spaces, and characters that cannot be seen
     * become escapes.
     */
    PxSourceFrame(const PxSourceLines::Piece &piece, const PxPlace &place, int width);
};
