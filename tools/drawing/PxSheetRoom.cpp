#include "drawing/PxSheetRoom.h"

#include "drawing/PxShapeMaker.h"

#include <QtAlgorithms>

#include <algorithm>

namespace {

constexpr PxDrawnLayer firstOfGeometry = PxDrawnLayer::Areas;
constexpr PxDrawnLayer lastOfGeometry = PxDrawnLayer::Marks;

void collect(const QVector<PxDrawnShape> &shapes, const QPointF &offset,
             QVector<PxSheetRoom::Item> *items)
{
    for (const PxDrawnShape &shape : shapes) {
        if (shape.kind == PxDrawnShape::Group)
            collect(shape.children, offset + shape.translation, items);
        else
            items->append({&shape, shape.rect.translated(offset)});
    }
}

void collectTexts(const PxDrawnShape &shape, QVector<QRectF> *texts)
{
    if (shape.kind == PxDrawnShape::Text)
        texts->append(PxShapeMaker::boundsOf(shape));
    for (const PxDrawnShape &child : shape.children)
        collectTexts(child, texts);
}

} // namespace

int pxIndexOfLayer(PxDrawnLayer layer)
{
    return int(qCountTrailingZeroBits(unsigned(layer)));
}

PxSheetRoom::PxSheetRoom(PxDrawingSheet &drawing, double annotation)
    : m_drawing(drawing)
    , m_a(annotation)
    , m_geometry(QRectF(drawing.sheet.total) | QRectF(drawing.sheet.trim))
{
    for (int i = pxIndexOfLayer(firstOfGeometry); i <= pxIndexOfLayer(lastOfGeometry); ++i) {
        const QVector<PxDrawnShape> &shapes = m_drawing.layers[std::size_t(i)];
        m_geometry |= PxShapeMaker::boundsOf(shapes);
        collect(shapes, {}, &m_items);
    }
    m_used = m_geometry;
}

QVector<PxSheetRoom::Item> PxSheetRoom::items(std::string_view className) const
{
    QVector<Item> items;
    std::copy_if(m_items.begin(), m_items.end(), std::back_inserter(items),
                 [&](const Item &item) { return item.shape->className == className; });
    return items;
}

bool PxSheetRoom::isFree(const QRectF &rect) const
{
    return std::none_of(m_texts.begin(), m_texts.end(),
                        [&](const QRectF &text) { return text.intersects(rect); });
}

void PxSheetRoom::add(PxDrawnLayer layer, const PxDrawnShape &shape)
{
    m_drawing.layers[std::size_t(pxIndexOfLayer(layer))].append(shape);
    m_used |= PxShapeMaker::boundsOf(shape);
    collectTexts(shape, &m_texts);
}

void PxSheetRoom::addLabel(PxDrawnLayer layer, const PxDrawnShape &shape)
{
    add(layer, shape);
    m_texts.append(PxShapeMaker::boundsOf(shape));
}
