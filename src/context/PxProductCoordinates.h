#pragma once

#include "PxProductPropertiesExport.h"

class QRect;
class QRectF;

/**
 * Converts rectangles of the editor, in production units (tenths of a millimetre), to positions for
 * production: the centre and an even size, so that the edges also lie on whole units.
 *
 * Halves are rounded up, even below zero. Results outside the int range are clamped to it.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductCoordinates
{
public:
    /** Production units per millimetre. */
    static int productionUPM();

    // In production units. A size is even and at least 2.
    static int posX(const QRectF &rect);
    static int posY(const QRectF &rect);
    static int posWidth(const QRectF &rect);
    static int posHeight(const QRectF &rect);

    // The same in millimetres
    static double posXMM(const QRect &rect);
    static double posYMM(const QRect &rect);
    static double posWidthMM(const QRect &rect);
    static double posHeightMM(const QRect &rect);
};
