#include "PxFoundShapes.h"

#include <functional>

namespace {

QRectF around(const PxDrawnShape &shape)
{
    if (shape.kind == PxDrawnShape::Line)
        return QRectF(shape.line.p1(), shape.line.p2());
    QRectF rect = shape.rect;
    for (const PxDrawnStep &step : shape.steps) {
        if (step.kind == PxDrawnStep::Close)
            continue;
        if (&step == &shape.steps.constFirst())
            rect = QRectF(step.to, QSizeF(0, 0));
        rect.setLeft(qMin(rect.left(), step.to.x()));
        rect.setTop(qMin(rect.top(), step.to.y()));
        rect.setRight(qMax(rect.right(), step.to.x()));
        rect.setBottom(qMax(rect.bottom(), step.to.y()));
    }
    return rect;
}

QString attributeOf(const PxDrawnShape &shape, const char *name)
{
    for (const auto &attribute : shape.attributes) {
        if (attribute.first == name)
            return attribute.second;
    }
    return QString();
}

/** Visits each shape with the panel around it, which is null for none. */
void visit(const PxDrawnSheet &sheet, double annotation,
           const std::function<void(const PxDrawnShape &, const PxDrawnShape *)> &visitor)
{
    PxDrawingSheet drawing;
    PxSheetGeometry::addTo(sheet, annotation, drawing);
    for (const auto &layer : drawing.layers) {
        for (const PxDrawnShape &shape : layer) {
            if (shape.kind != PxDrawnShape::Group)
                visitor(shape, nullptr);
            for (const PxDrawnShape &child : shape.children)
                visitor(child, &shape);
        }
    }
}

} // namespace

QString PxFoundShape::attribute(const char *name) const
{
    return attributeOf(shape, name);
}

QVector<PxFoundShape> pxFindShapes(const PxDrawnSheet &sheet, std::string_view className,
                                   double annotation)
{
    QVector<PxFoundShape> found;
    visit(sheet, annotation, [&](const PxDrawnShape &shape, const PxDrawnShape *panel) {
        if (shape.className != className)
            return;
        PxFoundShape one;
        one.shape = shape;
        one.rect = around(shape);
        if (panel) {
            one.page = attributeOf(*panel, "data-page").toInt();
            one.role = attributeOf(*panel, "data-role");
            one.rect.translate(panel->translation);
        }
        found.append(one);
    });
    return found;
}

int pxCountPoints(const PxDrawnSheet &sheet)
{
    int count = 0;
    visit(sheet, 10, [&count](const PxDrawnShape &shape, const PxDrawnShape *) {
        count += 1 + shape.steps.size();
    });
    return count;
}
