#include "drawing/PxDrawingPainter.h"

#include "drawing/PxDrawing.h"
#include "drawing/PxDrawnFont.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>

#include <algorithm>
#include <cmath>

namespace {

/** Texts are set in one size and scaled, as no font can be set in every size. */
constexpr int sizeOfFont = 100;

QFont fontOf(const PxDrawnShape &shape)
{
    QFont font;
    font.setFamilies(pxDrawnFontFamilies());
    font.setStyleHint(QFont::SansSerif);
    font.setStyleStrategy(QFont::NoSubpixelAntialias); // which would colour the letters
    font.setHintingPreference(QFont::PreferNoHinting); // widths are those of the printed letters
    font.setPixelSize(sizeOfFont);
    font.setBold(shape.isBold);
    return font;
}

QPen penOf(const PxDrawnLine &line)
{
    if (line.width <= 0)
        return Qt::NoPen;
    QColor color = line.color;
    color.setAlphaF(line.opacity);
    QPen pen(color, line.width, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
    pen.setMiterLimit(4); // as in SVG
    if (line.dashes.isEmpty())
        return pen;
    QVector<qreal> dashes = line.dashes;
    for (qreal &dash : dashes)
        dash /= line.width; // the unit of a pen's dashes
    pen.setDashPattern(dashes);
    return pen;
}

/**
 * Adds the shorter arc of a circle around a centre that follows from radius and ends.
 *
 * It begins exactly where the path is: QPainterPath::arcTo() would add a short line there, and
 * the line's end would stand across.
 */
void addArc(QPainterPath *path, const PxDrawnStep &step)
{
    const QPointF from = path->currentPosition();
    const QPointF half = (step.to - from) / 2;
    const double halfLength = std::hypot(half.x(), half.y());
    if (halfLength <= 0 || step.radius <= 0) {
        path->lineTo(step.to);
        return;
    }
    const double radius = std::max(step.radius, halfLength); // as in SVG
    const double distance = std::sqrt(radius * radius - halfLength * halfLength) / halfLength;
    const double side = step.isClockwise ? 1 : -1;
    const QPointF centre = from + half + QPointF(-half.y(), half.x()) * distance * side;
    // It is at most half a circle: two curves are as good as an arc.
    const double sweep = side * std::asin(std::min(1.0, halfLength / radius));
    const double pull = 4.0 / 3 * std::tan(sweep / 4); // of the points between, along the tangents
    const auto turned = [sweep](const QPointF &point) {
        return QPointF(point.x() * std::cos(sweep) - point.y() * std::sin(sweep),
                       point.x() * std::sin(sweep) + point.y() * std::cos(sweep));
    };
    const auto tangent = [pull](const QPointF &point) {
        return QPointF(-point.y(), point.x()) * pull;
    };
    const QPointF begin = from - centre;
    const QPointF middle = turned(begin);
    const QPointF end = step.to - centre;
    path->cubicTo(from + tangent(begin), centre + middle - tangent(middle), centre + middle);
    path->cubicTo(centre + middle + tangent(middle), step.to - tangent(end), step.to);
}

QPainterPath pathOf(const QVector<PxDrawnStep> &steps)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill); // as in SVG
    for (const PxDrawnStep &step : steps) {
        switch (step.kind) {
        case PxDrawnStep::Move:
            path.moveTo(step.to);
            break;
        case PxDrawnStep::Line:
            path.lineTo(step.to);
            break;
        case PxDrawnStep::Arc:
            addArc(&path, step);
            break;
        case PxDrawnStep::Close:
            path.closeSubpath();
            break;
        }
    }
    return path;
}

void paintText(const PxDrawnShape &shape, QPainter *painter)
{
    const QFont font = fontOf(shape);
    const double width = QFontMetricsF(font).horizontalAdvance(shape.text);
    const double scale = shape.fontSize / sizeOfFont;
    const double before = shape.anchor == PxDrawnShape::Anchor::Start    ? 0
                          : shape.anchor == PxDrawnShape::Anchor::Middle ? width / 2
                                                                         : width;
    painter->save();
    painter->translate(shape.position);
    if (shape.readsUpward)
        painter->rotate(-90);
    painter->scale(scale, scale);
    painter->setFont(font);
    painter->setPen(shape.fill.isValid() ? shape.fill : QColor(Qt::black));
    painter->drawText(QPointF(-before, 0), shape.text);
    painter->restore();
}

void paintShape(const PxDrawnShape &shape, QPainter *painter)
{
    painter->setPen(penOf(shape.stroke));
    painter->setBrush(shape.fill.isValid() ? QBrush(shape.fill) : QBrush());
    switch (shape.kind) {
    case PxDrawnShape::Group:
        painter->translate(shape.translation);
        for (const PxDrawnShape &child : shape.children)
            paintShape(child, painter);
        painter->translate(-shape.translation);
        break;
    case PxDrawnShape::Rect:
        painter->drawRect(shape.rect);
        break;
    case PxDrawnShape::Line:
        painter->drawLine(shape.line);
        break;
    case PxDrawnShape::Path:
        painter->drawPath(pathOf(shape.steps));
        break;
    case PxDrawnShape::Circle:
    case PxDrawnShape::Ellipse:
        painter->drawEllipse(shape.rect);
        break;
    case PxDrawnShape::Text:
        paintText(shape, painter);
        break;
    }
}

} // namespace

bool PxDrawingPainter::hasFonts()
{
    // Qt has families and a font of boxes nevertheless; but no such font knows characters.
    return !QRawFont::fromFont(fontOf({})).fontTable("cmap").isEmpty();
}

void PxDrawingPainter::paint(const PxDrawingSheet &sheet, QPainter *painter)
{
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const QVector<PxDrawnShape> &layer : sheet.layers) {
        for (const PxDrawnShape &shape : layer)
            paintShape(shape, painter);
    }
}
