#include "drawing/PxDrawnPath.h"

#include <cmath>

namespace {

using Steps = PxDrawnPath::Steps;

void append(Steps *steps, PxDrawnStep::Kind kind, const QPointF &to)
{
    steps->resize(steps->size() + 1); // gcc warns of faults that QVector::append() does not have
    steps->last().kind = kind;
    steps->last().to = to;
}

bool continues(const QRectF &area, const QRectF &next)
{
    return area.right() == next.left() && area.top() < next.bottom() && next.top() < area.bottom();
}

} // namespace

void PxDrawnPath::addLine(Steps *steps, const QPointF &from, const QPointF &to)
{
    append(steps, PxDrawnStep::Move, from);
    append(steps, PxDrawnStep::Line, to);
}

void PxDrawnPath::addArc(Steps *steps, const QPointF &from, const QPointF &to, double radius)
{
    append(steps, PxDrawnStep::Move, from);
    append(steps, PxDrawnStep::Arc, to);
    steps->last().radius = radius;
}

void PxDrawnPath::addContour(Steps *steps, const QVector<QPointF> &points)
{
    for (const QPointF &point : points) {
        const bool isFirst = &point == &points.constFirst();
        if (isFirst || steps->constLast().to != point)
            append(steps, isFirst ? PxDrawnStep::Move : PxDrawnStep::Line, point);
    }
    append(steps, PxDrawnStep::Close, {});
}

void PxDrawnPath::addHatch(Steps *steps, const QRectF &area, double distance, const QPointF &origin)
{
    // A line is where x + y, on the sheet, is a multiple of the distance.
    const double onSheet = origin.x() + origin.y();
    const double first = area.left() + area.top() + onSheet;
    const double last = area.right() + area.bottom() + onSheet;
    // Large areas get no more lines than can be told apart.
    const double step = std::max(distance * std::sqrt(2.0), (last - first) / 1000);
    for (double i = std::ceil(first / step); i * step < last; ++i) {
        const double sum = i * step - onSheet;
        const double left = std::max(area.left(), sum - area.bottom());
        const double right = std::min(area.right(), sum - area.top());
        if (left < right)
            addLine(steps, {left, sum - left}, {right, sum - right});
    }
}

Steps PxDrawnPath::diagonals(const QRectF &rect)
{
    Steps steps;
    addLine(&steps, rect.topLeft(), rect.bottomRight());
    addLine(&steps, rect.bottomLeft(), rect.topRight());
    return steps;
}

Steps PxDrawnPath::outline(const QVector<QRectF> &areas)
{
    QVector<QRectF> filled;
    for (const QRectF &area : areas) {
        if (!area.isEmpty())
            filled.append(area);
    }
    Steps steps;
    for (int first = 0, last = 0; first < filled.size(); first = ++last) {
        while (last + 1 < filled.size() && continues(filled[last], filled[last + 1]))
            ++last;
        QVector<QPointF> points;
        for (int i = first; i <= last; ++i)
            points << filled[i].topLeft() << filled[i].topRight();
        for (int i = last; i >= first; --i)
            points << filled[i].bottomRight() << filled[i].bottomLeft();
        addContour(&steps, points);
    }
    return steps;
}

Steps PxDrawnPath::bars(const QRectF &area)
{
    // Widths of bars and gaps in turns.
    constexpr int widths[] = {1, 1, 1, 2, 3, 1, 1, 2, 2, 1, 1, 3, 1,
                              1, 2, 1, 3, 2, 1, 1, 2, 2, 1, 1, 1};
    int count = 0;
    for (const int width : widths)
        count += width;
    const bool isWide = area.width() >= area.height();
    const double module = (isWide ? area.width() : area.height()) / count;
    Steps steps;
    int at = 0;
    for (int i = 0; i < int(std::size(widths)); ++i) {
        const double from = at * module;
        const double length = widths[i] * module;
        const QRectF bar = isWide ? QRectF(area.left() + from, area.top(), length, area.height())
                                  : QRectF(area.left(), area.top() + from, area.width(), length);
        if (i % 2 == 0)
            addContour(&steps,
                       {bar.topLeft(), bar.topRight(), bar.bottomRight(), bar.bottomLeft()});
        at += widths[i];
    }
    return steps;
}
