#pragma once

#include <QList>
#include <QString>

#include <optional>

/** Numbers as a short text: "3-7, 26-154/2" means 3 to 7, then 26 to 154 in steps of 2. */
class PxNumberRanges
{
public:
    /**
     * Numbers from `begin` to before `end` of the list. At least three numbers with the same step
     * between them, from 1 to `largestStep`, become a range.
     */
    static QString text(const QList<int> &numbers, int begin, int end, int largestStep);
    /** All numbers, in ranges of any step. */
    static QString text(const QList<int> &numbers);
    /** The numbers of a text; nothing if it cannot be read, or if there are more than `most`. */
    static std::optional<QList<int>> numbers(const QString &text, int most);
};
