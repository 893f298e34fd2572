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

    // In production units
    /** The horizontal position of the centre. */
    static int posX(const QRectF &rect);
    /** The vertical position of the centre. */
    static int posY(const QRectF &rect);
    /** The width: even, and at least 2. */
    static int posWidth(const QRectF &rect);
    /** The height: even, and at least 2. */
    static int posHeight(const QRectF &rect);

    // The same in millimetres
    /** As posX(), in millimetres. */
    static double posXMM(const QRect &rect);
    /** As posY(), in millimetres. */
    static double posYMM(const QRect &rect);
    /** As posWidth(), in millimetres. */
    static double posWidthMM(const QRect &rect);
    /** As posHeight(), in millimetres. */
    static double posHeightMM(const QRect &rect);
};
