#pragma once

class QIODevice;
struct PxDrawing;

/** Writes drawings as SVG, with text as text. It needs no fonts. */
class PxDrawingSvg
{
public:
    /** The device must be open. The bytes depend on nothing but the drawing and the language. */
    static void write(const PxDrawing &drawing, QIODevice *device);
};
