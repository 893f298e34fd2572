#pragma once

#include <QString>

class PxHtml;
class QIODevice;
struct PxDrawing;

/** Writes drawings as SVG, with text as text. It needs no fonts. */
class PxDrawingSvg
{
public:
    /** The device must be open. The bytes depend on nothing but the drawing and the language. */
    static void write(const PxDrawing &drawing, QIODevice *device);
    /**
     * Writes an element into a page, without what is for programs only. All ids in it begin with
     * `prefix`, so that a page may have several drawings.
     */
    static void write(const PxDrawing &drawing, const QString &prefix, PxHtml *page);
};
