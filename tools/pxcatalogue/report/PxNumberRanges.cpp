#include "report/PxNumberRanges.h"

#include <limits>

namespace {

/**
 * The index behind the run that begins at `first`. Negative numbers begin no run, because "-3--1"
 * is hard to read.
 */
int endOfRun(const QList<int> &numbers, int first, int end, int largestStep)
{
    int next = first + 1;
    const auto stepTo = [&numbers](int i) { return qint64(numbers[i]) - numbers[i - 1]; };
    if (next == end || numbers[first] < 0 || stepTo(next) < 1 || stepTo(next) > largestStep)
        return next;
    const qint64 step = stepTo(next);
    while (next < end && stepTo(next) == step)
        ++next;
    return next;
}

} // namespace

QString PxNumberRanges::text(const QList<int> &numbers, int begin, int end, int largestStep)
{
    QString text;
    for (int first = begin; first < end;) {
        if (first > begin)
            text += ", ";
        text += QString::number(numbers[first]);
        const int endOfRange = endOfRun(numbers, first, end, largestStep);
        if (endOfRange - first < 3) {
            ++first;
            continue;
        }
        text += '-' + QString::number(numbers[endOfRange - 1]);
        const int step = numbers[first + 1] - numbers[first];
        if (step > 1)
            text += '/' + QString::number(step);
        first = endOfRange;
    }
    return text;
}

QString PxNumberRanges::text(const QList<int> &numbers)
{
    return text(numbers, 0, numbers.size(), std::numeric_limits<int>::max());
}
