#include "PxNearestNames.h"

#include <QVector>

#include <algorithm>
#include <numeric>
#include <tuple>

namespace {

enum class Compared { WithWhole, WithBestPart };

/** How many characters must be added, removed or replaced to make one text of the other. */
int editDistance(const QString &text, const QString &name, Compared compared)
{
    const bool isPart = compared == Compared::WithBestPart;
    QVector<int> row(name.size() + 1, 0); // a part may begin anywhere at no cost
    if (!isPart)
        std::iota(row.begin(), row.end(), 0);
    for (const QChar character : text) {
        int diagonal = row[0]++;
        for (int i = 0; i < name.size(); ++i) {
            const int replaced = diagonal + (name[i] == character ? 0 : 1);
            diagonal = row[i + 1];
            row[i + 1] = std::min({replaced, diagonal + 1, row[i] + 1});
        }
    }
    return isPart ? *std::min_element(row.cbegin(), row.cend()) : row.constLast();
}

} // namespace

PxNearestNames::PxNearestNames(const QStringList &names) : m_names(names) {}

QStringList PxNearestNames::find(const QString &text) const
{
    const QString wanted = text.trimmed().toUpper();
    const int tolerated = wanted.size() / 3;
    QVector<std::tuple<int, int, QString>> candidates;
    for (const QString &name : m_names) {
        const QString upper = name.toUpper();
        const int distance = editDistance(wanted, upper, Compared::WithBestPart);
        if (!wanted.isEmpty() && distance <= tolerated)
            candidates.append({distance, editDistance(wanted, upper, Compared::WithWhole), name});
    }
    std::sort(candidates.begin(), candidates.end());
    QStringList nearest;
    for (const auto &candidate : candidates.mid(0, 3))
        nearest.append(std::get<QString>(candidate));
    return nearest;
}
