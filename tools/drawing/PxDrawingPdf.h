#pragma once

#include "writing/PxProblem.h"

#include <QByteArray>

#include <optional>

struct PxDrawing;

/** Writes drawings as PDF, a page for each sheet. It needs a QGuiApplication, and a font. */
class PxDrawingPdf
{
public:
    /** The longest side of a page, in user units: programs refuse more. */
    static constexpr int longestSide = 50800;

    /** False in a build without PX_DRAW_PDF; then there is always a problem. */
    static bool isAvailable();
    /** The problem is a sheet that is too large. */
    static std::optional<PxProblem> write(const PxDrawing &drawing, QByteArray *pdf);
};
