#pragma once

#include <QList>

/**
 * The single bits of a flag value, in ascending order.
 *
 * A value below 1 has none, even if bits other than the sign bit are set.
 */
template <typename E>
QList<E> splitEnumType(E value)
{
    QList<E> bits;
    if (value < 1)
        return bits;
    for (unsigned rest = static_cast<unsigned>(value); rest != 0; rest &= rest - 1)
        bits.append(static_cast<E>(rest & (~rest + 1)));
    return bits;
}
