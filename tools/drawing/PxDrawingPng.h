#pragma once

#include "writing/PxProblem.h"

#include <QByteArray>

#include <optional>

struct PxDrawing;

/** Writes drawings as PNG: opaque, on white. It needs a QGuiApplication, and a font. */
class PxDrawingPng
{
public:
    static constexpr int pixelsPerAnnotation = 7;
    static constexpr int longestSide = 30000;
    static constexpr qint64 mostPixels = 100000000;

    /**
     * Writes with `dpi` pixels per inch at true scale; with 0, with as many as a legible text
     * needs. The problem is a picture that is too large.
     */
    static std::optional<PxProblem> write(const PxDrawing &drawing, int dpi, QByteArray *png);
};
