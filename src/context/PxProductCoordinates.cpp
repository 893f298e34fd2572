#include "context/PxProductCoordinates.h"

#include <QRect>
#include <QRectF>
#include <QtMath>

#include <cmath>
#include <limits>

namespace {

int roundHalfUp(double value)
{
    if (qIsNaN(value))
        return 0;
    return int(qBound<double>(std::numeric_limits<int>::min(), std::floor(value + 0.5),
                              std::numeric_limits<int>::max()));
}

int evenSize(double size)
{
    return qMax(2, roundHalfUp(size) & ~1);
}

/**
 * Computed with real numbers from the start: the width of an int rectangle may not fit into an int.
 */
QRectF toReal(const QRect &rect)
{
    return QRectF(rect.left(), rect.top(), double(rect.right()) - rect.left() + 1,
                  double(rect.bottom()) - rect.top() + 1);
}

double toMillimetres(int position)
{
    return double(position) / PxProductCoordinates::productionUPM();
}

} // namespace

int PxProductCoordinates::productionUPM()
{
    return 10;
}

int PxProductCoordinates::posX(const QRectF &rect)
{
    return roundHalfUp(rect.x() + rect.width() * 0.5);
}

int PxProductCoordinates::posY(const QRectF &rect)
{
    return roundHalfUp(rect.y() + rect.height() * 0.5);
}

int PxProductCoordinates::posWidth(const QRectF &rect)
{
    return evenSize(rect.width());
}

int PxProductCoordinates::posHeight(const QRectF &rect)
{
    return evenSize(rect.height());
}

double PxProductCoordinates::posXMM(const QRect &rect)
{
    return toMillimetres(posX(toReal(rect)));
}

double PxProductCoordinates::posYMM(const QRect &rect)
{
    return toMillimetres(posY(toReal(rect)));
}

double PxProductCoordinates::posWidthMM(const QRect &rect)
{
    return toMillimetres(posWidth(toReal(rect)));
}

double PxProductCoordinates::posHeightMM(const QRect &rect)
{
    return toMillimetres(posHeight(toReal(rect)));
}
