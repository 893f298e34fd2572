#pragma once

#include "PxProductPropertiesExport.h"

class QRect;
class QRectF;

/**
 * Turns editor rectangles, in production units (tenths of a millimetre), into production positions:
 * the centre and an even size, so that the edges lie on whole units, too.
 *
 * Halves are rounded up, also below zero; what leaves the int range is clamped to it.
 */
class PXPRODUCTPROPERTIES_EXPORT PxProductCoordinates
{
public:
    /** Production units per millimetre. */
    static int productionUPM();

    // In production units; a size is even and at least 2
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
