#pragma once

#include "drawing/PxDrawnShape.h"

/** Makes the shapes of annotations, and tells how much room shapes take. */
namespace PxShapeMaker {

/** The colours of annotations: of texts, and of what shall not strike the eye. */
extern const char *const ink;
extern const char *const paleInk;

PxDrawnLine thinLine(double annotation);

PxDrawnShape group(std::string_view className,
                   const QVector<QPair<std::string_view, QString>> &attributes = {});
PxDrawnShape line(std::string_view className, const QPointF &from, const QPointF &to,
                  const PxDrawnLine &stroke);
PxDrawnShape rect(std::string_view className, const QRectF &rect, const PxDrawnLine &stroke,
                  const QColor &fill = {});
PxDrawnShape circle(const QPointF &center, double radius, const PxDrawnLine &stroke,
                    const QColor &fill = {});
/** A path of straight lines. */
PxDrawnShape path(const QVector<QPointF> &points, const PxDrawnLine &stroke,
                  const QColor &fill = {}, bool isClosed = false);
/** Font sizes are whole units. */
PxDrawnShape text(const QPointF &position, const QString &text, double fontSize,
                  PxDrawnShape::Anchor anchor = PxDrawnShape::Anchor::Start, bool isBold = false);

/** A font size of this many annotation millimetres. */
double fontSize(double factor, double annotation);

/** What encloses the shape and what is in it, lines included; an estimate for texts. */
QRectF boundsOf(const PxDrawnShape &shape);
QRectF boundsOf(const QVector<PxDrawnShape> &shapes);

} // namespace PxShapeMaker
