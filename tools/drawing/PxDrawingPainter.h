#pragma once

class QPainter;
struct PxDrawingSheet;

/** Paints sheets. It needs a QGuiApplication, and a font for the texts. */
class PxDrawingPainter
{
public:
    /** Whether this machine has any font. */
    static bool hasFonts();

    /** The painter's unit must be the user unit, and its origin that of the sheet. */
    static void paint(const PxDrawingSheet &sheet, QPainter *painter);
};
