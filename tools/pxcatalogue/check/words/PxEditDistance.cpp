#include "check/words/PxEditDistance.h"

#include <QVarLengthArray>

#include <algorithm>
#include <numeric>

int PxEditDistance::between(const QString &from, const QString &to, Swap swap, int atMost)
{
    return distance(from, to, swap, atMost, false);
}

int PxEditDistance::toPartOf(const QString &whole, const QString &part)
{
    return distance(part, whole, Swap::IsOneChange, std::numeric_limits<int>::max(), true);
}

int PxEditDistance::distance(const QString &from, const QString &to, Swap swap, int atMost,
                             bool isToPart)
{
    using Row = QVarLengthArray<int, 128>;
    Row row(to.size() + 1);
    std::fill(row.begin(), row.end(), 0); // a part may begin anywhere without cost
    if (!isToPart)
        std::iota(row.begin(), row.end(), 0);
    Row above = row;
    Row before = row; // two rows back, for swapped characters
    for (int i = 0; i < from.size(); ++i) {
        std::copy(above.begin(), above.end(), before.begin());
        std::copy(row.begin(), row.end(), above.begin());
        row[0] = i + 1;
        for (int j = 0; j < to.size(); ++j) {
            row[j + 1] =
                std::min({above[j] + (from[i] == to[j] ? 0 : 1), above[j + 1] + 1, row[j] + 1});
            if (swap == Swap::IsOneChange && i > 0 && j > 0 && from[i] == to[j - 1] &&
                from[i - 1] == to[j])
                row[j + 1] = std::min(row[j + 1], before[j - 1] + 1);
        }
        // No value falls below the smallest one in the two rows above it.
        if (*std::min_element(row.begin(), row.end()) > atMost &&
            *std::min_element(above.begin(), above.end()) > atMost)
            return std::numeric_limits<int>::max();
    }
    return isToPart ? *std::min_element(row.cbegin(), row.cend()) : row[to.size()];
}
