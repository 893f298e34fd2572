#pragma once

#include <QString>

#include <limits>

/** How many characters must be added, removed or replaced to turn one text into another. */
class PxEditDistance
{
public:
    enum class Swap { IsTwoChanges, IsOneChange }; ///< of two adjacent characters

    /** Stops early if the distance exceeds `atMost`; the result is then just some larger number. */
    static int between(const QString &from, const QString &to, Swap swap = Swap::IsTwoChanges,
                       int atMost = std::numeric_limits<int>::max());
    /**
     * The distance between `part` and the part of `whole` that is most similar to it. Two swapped
     * characters are one change.
     */
    static int toPartOf(const QString &whole, const QString &part);

private:
    static int distance(const QString &from, const QString &to, Swap swap, int atMost,
                        bool isToPart);
};
