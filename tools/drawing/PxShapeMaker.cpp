#include "drawing/PxShapeMaker.h"

#include "drawing/PxTextWidth.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

/** How far letters reach above and below their base line, in font sizes. */
constexpr double ascent = 0.95;
constexpr double descent = 0.25;

/** Lets a point have an area. */
constexpr double smallest = 1e-6;

/** Unlike QRectF::united(), counts what has no width or height. */
QRectF both(const QRectF &one, const QRectF &other)
{
    if (one.isNull())
        return other;
    if (other.isNull())
        return one;
    return {QPointF(std::min(one.left(), other.left()), std::min(one.top(), other.top())),
            QPointF(std::max(one.right(), other.right()), std::max(one.bottom(), other.bottom()))};
}

QRectF around(const QPointF &point, double distance)
{
    return {point.x() - distance, point.y() - distance, 2 * distance, 2 * distance};
}

QRectF boundsOfText(const PxDrawnShape &shape)
{
    const double width = PxTextWidth::of(shape.text, shape.fontSize, shape.isBold);
    const double start = shape.anchor == PxDrawnShape::Anchor::Start    ? 0
                         : shape.anchor == PxDrawnShape::Anchor::Middle ? -width / 2
                                                                        : -width;
    const double up = ascent * shape.fontSize;
    const double height = (ascent + descent) * shape.fontSize;
    if (shape.readsUpward)
        return {shape.position.x() - up, shape.position.y() - start - width, height, width};
    return {shape.position.x() + start, shape.position.y() - up, width, height};
}

QRectF boundsOfPath(const PxDrawnShape &shape)
{
    QRectF bounds;
    QPointF last;
    for (const PxDrawnStep &step : shape.steps) {
        if (step.kind == PxDrawnStep::Close)
            continue;
        const double margin = std::max(shape.stroke.width / 2, smallest);
        bounds = both(bounds, around(step.to, margin));
        if (step.kind == PxDrawnStep::Arc) { // not more than half a circle
            const QPointF half = (step.to - last) / 2;
            bounds = both(bounds, around(last + half, std::hypot(half.x(), half.y()) + margin));
        }
        last = step.to;
    }
    return bounds;
}

QRectF boundsOfGroup(const PxDrawnShape &group)
{
    return PxShapeMaker::boundsOf(group.children).translated(group.translation);
}

} // namespace

const char *const PxShapeMaker::ink = "#212121";
const char *const PxShapeMaker::paleInk = "#616161";

PxDrawnLine PxShapeMaker::thinLine(double annotation)
{
    return {0.12 * annotation, QColor(paleInk), {}, 1};
}

PxDrawnShape PxShapeMaker::group(std::string_view className,
                                 const QVector<QPair<std::string_view, QString>> &attributes)
{
    PxDrawnShape shape;
    shape.className = className;
    shape.attributes = attributes;
    return shape;
}

PxDrawnShape PxShapeMaker::line(std::string_view className, const QPointF &from, const QPointF &to,
                                const PxDrawnLine &stroke)
{
    PxDrawnShape shape;
    shape.kind = PxDrawnShape::Line;
    shape.className = className;
    shape.line = {from, to};
    shape.stroke = stroke;
    return shape;
}

PxDrawnShape PxShapeMaker::rect(std::string_view className, const QRectF &rect,
                                const PxDrawnLine &stroke, const QColor &fill)
{
    PxDrawnShape shape;
    shape.kind = PxDrawnShape::Rect;
    shape.className = className;
    shape.rect = rect;
    shape.stroke = stroke;
    shape.fill = fill;
    return shape;
}

PxDrawnShape PxShapeMaker::circle(const QPointF &center, double radius, const PxDrawnLine &stroke,
                                  const QColor &fill)
{
    PxDrawnShape shape = rect({}, around(center, radius), stroke, fill);
    shape.kind = PxDrawnShape::Circle;
    return shape;
}

PxDrawnShape PxShapeMaker::path(const QVector<QPointF> &points, const PxDrawnLine &stroke,
                                const QColor &fill, bool isClosed)
{
    PxDrawnShape shape;
    shape.kind = PxDrawnShape::Path;
    shape.stroke = stroke;
    shape.fill = fill;
    std::vector<PxDrawnStep> steps; // gcc warns of faults that QVector does not have here
    for (const QPointF &point : points)
        steps.push_back({steps.empty() ? PxDrawnStep::Move : PxDrawnStep::Line, point, 0, true});
    if (isClosed)
        steps.push_back({PxDrawnStep::Close, {}, 0, true});
    shape.steps = QVector<PxDrawnStep>(steps.begin(), steps.end());
    return shape;
}

PxDrawnShape PxShapeMaker::text(const QPointF &position, const QString &text, double fontSize,
                                PxDrawnShape::Anchor anchor, bool isBold)
{
    PxDrawnShape shape;
    shape.kind = PxDrawnShape::Text;
    shape.position = position;
    shape.text = text;
    shape.fontSize = fontSize;
    shape.anchor = anchor;
    shape.isBold = isBold;
    shape.fill = QColor(ink);
    return shape;
}

double PxShapeMaker::fontSize(double factor, double annotation)
{
    return std::ceil(factor * annotation - 1e-6);
}

QRectF PxShapeMaker::boundsOf(const PxDrawnShape &shape)
{
    const double margin = std::max(shape.stroke.width / 2, smallest);
    switch (shape.kind) {
    case PxDrawnShape::Group:
        return boundsOfGroup(shape);
    case PxDrawnShape::Text:
        return boundsOfText(shape);
    case PxDrawnShape::Path:
        return boundsOfPath(shape);
    case PxDrawnShape::Line:
        return both(around(shape.line.p1(), margin), around(shape.line.p2(), margin));
    case PxDrawnShape::Rect:
    case PxDrawnShape::Circle:
    case PxDrawnShape::Ellipse:
        break;
    }
    const double outside = shape.stroke.width / 2;
    return shape.rect.normalized().adjusted(-outside, -outside, outside, outside);
}

QRectF PxShapeMaker::boundsOf(const QVector<PxDrawnShape> &shapes)
{
    QRectF bounds;
    for (const PxDrawnShape &shape : shapes)
        bounds = both(bounds, boundsOf(shape));
    return bounds;
}
