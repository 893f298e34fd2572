#include "report/PxNumberRanges.h"

#include <QVector>

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

std::optional<QList<int>> PxNumberRanges::numbers(const QString &text, int most)
{
    QList<int> numbers;
    const QVector<QStringRef> parts =
        text.isEmpty() ? QVector<QStringRef>() : text.splitRef(QLatin1String(", "));
    for (const QStringRef &part : parts) {
        const int dash = part.indexOf('-', 1); // behind the sign
        const int slash = part.indexOf('/');
        bool isFirst = false;
        bool isLast = true;
        bool isStep = true;
        const int first = part.left(dash < 0 ? slash : dash).toInt(&isFirst);
        const int last = dash < 0 ? first : part.mid(dash + 1, slash - dash - 1).toInt(&isLast);
        const int step = slash < 0 ? 1 : part.mid(slash + 1).toInt(&isStep);
        if (!isFirst || !isLast || !isStep || step < 1 || last < first ||
            (qint64(last) - first) / step >= most - numbers.size())
            return std::nullopt;
        for (qint64 number = first; number <= last; number += step)
            numbers.append(int(number));
    }
    return numbers;
}
