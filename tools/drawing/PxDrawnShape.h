#pragma once

#include <QColor>
#include <QLineF>
#include <QPair>
#include <QPoint>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QVector>

#include <string_view>

/** A line; none if it has no width. */
struct PxDrawnLine
{
    double width = 0;
    QColor color = Qt::black;
    QVector<double> dashes; ///< lengths of dashes and gaps in turns; empty for a solid line
    double opacity = 1;
};

struct PxDrawnStep
{
    enum Kind { Move, Line, Arc, Close };

    Kind kind = Move;
    QPointF to;
    double radius = 0; ///< of an arc, which is the shorter one to its end
    bool isClockwise = true;
};

Q_DECLARE_TYPEINFO(PxDrawnStep, Q_MOVABLE_TYPE);

/**
 * A shape, or a group of them, as it is written or painted: writers need to know no more.
 *
 * Coordinates are those of the sheet, or of the group around it, and in user units: tenths of a
 * millimetre. Shapes that come later lie above.
 */
struct PxDrawnShape
{
    enum Kind { Group, Rect, Line, Path, Circle, Ellipse, Text };
    enum class Anchor { Start, Middle, End };

    Kind kind = Group;
    std::string_view className; ///< a word of the program
    /** "data-…" for programs, in the order in which they are written. Values may hold anything. */
    QVector<QPair<std::string_view, QString>> attributes;

    QRectF rect;                ///< of a rectangle; around a circle or an ellipse
    QLineF line;                ///< of a line
    QVector<PxDrawnStep> steps; ///< of a path
    PxDrawnLine stroke;
    QColor fill; ///< invalid for none

    QString text; ///< made visible already
    QPointF position;
    double fontSize = 0;
    Anchor anchor = Anchor::Start;
    bool isBold = false;
    bool readsUpward = false; ///< turned by 90 degrees to the left around its position

    QPoint translation; ///< of a group
    QVector<PxDrawnShape> children;
};

Q_DECLARE_TYPEINFO(PxDrawnShape, Q_MOVABLE_TYPE);
