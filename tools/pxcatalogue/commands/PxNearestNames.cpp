#include "commands/PxNearestNames.h"

#include "check/words/PxEditDistance.h"

#include <QVector>

#include <algorithm>
#include <tuple>

PxNearestNames::PxNearestNames(const QStringList &names) : m_names(names) {}

QStringList PxNearestNames::find(const QString &text) const
{
    const QString wanted = text.trimmed().toUpper();
    const int tolerated = wanted.size() / 3;
    QVector<std::tuple<int, int, QString>> candidates;
    for (const QString &name : m_names) {
        const QString upper = name.toUpper();
        const int distance = PxEditDistance::toPartOf(upper, wanted);
        if (!wanted.isEmpty() && distance <= tolerated)
            candidates.append({distance, PxEditDistance::between(wanted, upper), name});
    }
    std::sort(candidates.begin(), candidates.end());
    QStringList nearest;
    for (const auto &candidate : candidates.mid(0, 3))
        nearest.append(std::get<QString>(candidate));
    return nearest;
}
