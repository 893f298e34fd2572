#pragma once

#include "drawing/PxDrawing.h"

#include <QRectF>
#include <QVector>

/** A sheet while it is annotated: what is drawn already, and where texts stand. */
class PxSheetRoom
{
public:
    /** A shape of the lower layers, with its place on the sheet. */
    struct Item
    {
        const PxDrawnShape *shape;
        QRectF rect; ///< without the line
    };

    /** The sheet has its geometric layers; those that are not shown are empty. */
    PxSheetRoom(PxDrawingSheet &drawing, double annotation);

    const PxDrawnSheet &sheet() const { return m_drawing.sheet; }
    /** The annotation millimetre. */
    double a() const { return m_a; }
    /** Around all geometry, and the sheet with its bleed. */
    QRectF geometry() const { return m_geometry; }
    /** Around all that is drawn. */
    QRectF used() const { return m_used; }
    /** Shapes of the geometry with this class, from the lowest. */
    QVector<Item> items(std::string_view className) const;

    /** Whether no text stands there. */
    bool isFree(const QRectF &rect) const;
    /** Adds a shape to a layer, and remembers where its texts stand, with all that is around them.
     */
    void add(PxDrawnLayer layer, const PxDrawnShape &shape);
    /** The same for a shape that is one label as a whole. */
    void addLabel(PxDrawnLayer layer, const PxDrawnShape &shape);

private:
    PxDrawingSheet &m_drawing;
    double m_a;
    QRectF m_geometry;
    QRectF m_used;
    QVector<QRectF> m_texts;
    QVector<Item> m_items;
};

/** The number of a layer's bit: its index in PxDrawingSheet::layers. */
int pxIndexOfLayer(PxDrawnLayer layer);
