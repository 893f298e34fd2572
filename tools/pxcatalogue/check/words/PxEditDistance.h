#pragma once

#include <QString>

#include <limits>

/** How many characters must be added, removed or replaced to make one text of another. */
class PxEditDistance
{
public:
    enum class Swap { IsTwoChanges, IsOneChange }; ///< two neighbours that changed their places

    /** Above `atMost` the answer is only some greater number, which is found sooner. */
    static int between(const QString &from, const QString &to, Swap swap = Swap::IsTwoChanges,
                       int atMost = std::numeric_limits<int>::max());
    /** To make that part of `whole` of it which is most like it. */
    static int toPartOf(const QString &whole, const QString &part);

private:
    static int distance(const QString &from, const QString &to, Swap swap, int atMost,
                        bool isToPart);
};
