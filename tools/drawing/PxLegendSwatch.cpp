#include "drawing/PxLegendSwatch.h"

#include "drawing/PxShapeMaker.h"

#include <algorithm>

namespace {

using Shapes = QVector<PxDrawnShape>;

Shapes filled(PxDrawnItem item, const QRectF &box, double a)
{
    return {PxShapeMaker::rect({}, box, PxDrawnStyle::line(item, a), PxDrawnStyle::fill(item))};
}

Shapes hatched(PxDrawnItem item, const QRectF &box, double a)
{
    Shapes shapes{PxShapeMaker::rect({}, box, {}, PxDrawnStyle::fill(item))};
    const double height = box.height();
    for (double x = box.left(); x + height <= box.right() + 1e-6; x += height / 2)
        shapes.append(PxShapeMaker::path({{x, box.bottom()}, {x + height, box.top()}},
                                         PxDrawnStyle::line(item, a)));
    return shapes;
}

Shapes crossed(PxDrawnItem item, const QRectF &box, double a)
{
    const PxDrawnLine thin{0.12 * a, QColor("#8CC7D0"), {}, 1};
    const double inset = 0.5 * a;
    const QRectF inner = box.adjusted(inset, inset, -inset, -inset);
    return {PxShapeMaker::rect({}, inner, PxDrawnStyle::line(item, a)),
            PxShapeMaker::path({inner.topLeft(), inner.bottomRight()}, thin),
            PxShapeMaker::path({inner.topRight(), inner.bottomLeft()}, thin)};
}

Shapes barcode(const QRectF &box, double a)
{
    Shapes shapes = filled(PxDrawnItem::Barcode, box, a);
    const double step = box.width() / 12;
    for (int i = 1; i < 12; ++i) {
        const double width = (i % 3 == 0 ? 0.5 : 0.25) * step;
        shapes.append(PxShapeMaker::rect(
            {}, {box.left() + i * step, box.top() + 0.15 * box.height(), width, 0.7 * box.height()},
            {}, PxDrawnStyle::line(PxDrawnItem::Barcode, a).color));
    }
    return shapes;
}

Shapes ellipse(PxDrawnItem item, const QRectF &box, double a)
{
    PxDrawnShape shape =
        PxShapeMaker::rect({}, box, PxDrawnStyle::line(item, a), PxDrawnStyle::fill(item));
    shape.kind = PxDrawnShape::Ellipse;
    return {shape};
}

QRectF squareIn(const QRectF &box)
{
    QRectF square(0, 0, box.height(), box.height());
    square.moveCenter(box.center());
    return square;
}

Shapes cross(PxDrawnItem item, const QRectF &box, double a)
{
    const PxDrawnLine stroke = PxDrawnStyle::line(item, a);
    const QRectF square = squareIn(box);
    const QPointF center = square.center();
    return {
        PxShapeMaker::path({{square.left(), center.y()}, {square.right(), center.y()}}, stroke),
        PxShapeMaker::path({{center.x(), square.top()}, {center.x(), square.bottom()}}, stroke)};
}

/** Half circles side by side. */
Shapes loops(PxDrawnItem item, const QRectF &box, int count, double a)
{
    const double radius = std::min(box.width() / count / 2.4, box.height() / 2);
    const double y = box.center().y() + radius / 2;
    Shapes shapes;
    for (int i = 0; i < count; ++i) {
        const double x = box.left() + (i + 0.5) * box.width() / count;
        PxDrawnShape loop = PxShapeMaker::path({{x - radius, y}}, PxDrawnStyle::line(item, a));
        loop.steps.append({PxDrawnStep::Arc, {x + radius, y}, radius, true});
        shapes.append(loop);
    }
    return shapes;
}

/** The marks at a corner. */
Shapes marks(const QRectF &box, double a)
{
    const PxDrawnLine stroke = PxDrawnStyle::line(PxDrawnItem::Marks, a);
    const QPointF corner = box.center();
    const double gap = 0.6 * a;
    return {
        PxShapeMaker::path({{box.left(), corner.y()}, {corner.x() - gap, corner.y()}}, stroke),
        PxShapeMaker::path({{corner.x(), corner.y() - gap}, {corner.x(), box.top()}}, stroke),
    };
}

} // namespace

QVector<PxDrawnShape> pxLegendSwatch(PxDrawnItem item, const QRectF &box, double annotation)
{
    const double middle = box.center().y();
    switch (item) {
    case PxDrawnItem::BleedArea:
        return hatched(item, box, annotation);
    case PxDrawnItem::Trim:
    case PxDrawnItem::FoldMargin:
    case PxDrawnItem::Clamp:
    case PxDrawnItem::SpineText:
        return filled(item, box, annotation);
    case PxDrawnItem::Surrounding:
    case PxDrawnItem::SurroundingBelow:
        return crossed(item, box, annotation);
    case PxDrawnItem::Barcode:
        return barcode(box, annotation);
    case PxDrawnItem::Round:
        return ellipse(item, box, annotation);
    case PxDrawnItem::Hole:
        return ellipse(item, squareIn(box), annotation);
    case PxDrawnItem::PageNumber:
        return cross(item, box, annotation);
    case PxDrawnItem::Spiral:
        return loops(item, box, 4, annotation);
    case PxDrawnItem::Hook:
        return loops(item, box, 1, annotation);
    case PxDrawnItem::Marks:
        return marks(box, annotation);
    case PxDrawnItem::Bleed:
    case PxDrawnItem::Safe:
    case PxDrawnItem::Spine:
    case PxDrawnItem::Fold:
        break;
    }
    return {PxShapeMaker::path({{box.left(), middle}, {box.right(), middle}},
                               PxDrawnStyle::line(item, annotation))};
}
