#pragma once

#include "drawing/PxDrawnLayer.h"
#include "drawing/PxDrawnProduct.h"
#include "drawing/PxDrawnShape.h"

#include <array>

/** A sheet as it is drawn. */
struct PxDrawingSheet
{
    PxDrawnSheet sheet;
    /** The part of the plane that belongs to it, in its coordinates. */
    QRect canvas;
    QString title;
    QString description;
    /** The content of each layer, from the lowest; an empty one is left out. */
    std::array<QVector<PxDrawnShape>, pxDrawnLayerCount> layers;
};

/**
 * A drawing: what writers and painters get. Sheets stand below each other, at x = 0, in the order
 * of their pages.
 */
struct PxDrawing
{
    PxDrawnProduct product;
    QString title;
    QString description;
    int annotation = 10; ///< the annotation millimetre, in user units
    QVector<PxDrawingSheet> sheets;

    /** The width of the widest sheet, and the height of all. */
    QSize size() const;
    /** The upper left corner of each sheet's canvas in the drawing. */
    QPoint positionOf(int sheet) const;
};

/**
 * Draws sheets of a product, by their indexes in it, with these layers. All sheets of a product are
 * annotated in one size, whichever of them are drawn.
 */
PxDrawing pxDraw(const PxDrawnProduct &product, const QVector<int> &sheets, PxDrawnLayers layers);
/**
 * Draws all sheets, with annotations as small as these layers allow: for drawings that are not
 * compared with those of other layers. It is several times as fast.
 */
PxDrawing pxDrawAll(const PxDrawnProduct &product, PxDrawnLayers layers);
/** Draws the first sheet with lines so heavy that they are seen when it is an inch wide. */
PxDrawing pxDrawSmall(const PxDrawnProduct &product, PxDrawnLayers layers);
