#pragma once

#include <QSize>
#include <QtGlobal>

#include <limits>

// Product files may hold any 32-bit number. Results of computations with them are kept in the int
// range.

inline int pxClampedInt(qint64 value)
{
    return int(
        qBound<qint64>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
}

inline int pxClampedSum(int a, int b)
{
    return pxClampedInt(qint64(a) + b);
}

inline QSize pxClampedSum(const QSize &a, const QSize &b)
{
    return QSize(pxClampedSum(a.width(), b.width()), pxClampedSum(a.height(), b.height()));
}
