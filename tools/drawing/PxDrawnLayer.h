#pragma once

#include <QFlags>
#include <QString>

/** The layers of a sheet, from the lowest to the highest. */
enum class PxDrawnLayer {
    Background = 0x1,
    Areas = 0x2,
    Surroundings = 0x4,
    Fittings = 0x8,
    Barcodes = 0x10,
    PageNumbers = 0x20,
    Folds = 0x40,
    Spine = 0x80,
    Safe = 0x100,
    Bleed = 0x200,
    Trim = 0x400,
    Marks = 0x800,
    Dimensions = 0x1000,
    Labels = 0x2000,
    Legend = 0x4000,
    Title = 0x8000
};
Q_DECLARE_FLAGS(PxDrawnLayers, PxDrawnLayer)
Q_DECLARE_OPERATORS_FOR_FLAGS(PxDrawnLayers)

constexpr int pxDrawnLayerCount = 16;

/** The name of the layer with this number, in ids and on command lines: "page-numbers". */
const char *pxDrawnLayerName(int layer);
/** How programs that show the layers of a file call it. */
QString pxDrawnLayerLabel(int layer);
