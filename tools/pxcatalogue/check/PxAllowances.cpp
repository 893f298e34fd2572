#include "check/PxAllowances.h"

#include <QSet>

#include <algorithm>
#include <tuple>

namespace {

using Allowance = PxAllowances::Allowance;

auto beginOf(const PxPlace &place)
{
    return std::make_tuple(place.line, place.column);
}

auto endOf(const PxPlace &place)
{
    return std::make_tuple(place.endLine, place.endColumn);
}

/** For each finding which of the allowances counts, or -1. Both have one path and one tag. */
QVector<int> allowancesOf(const QVector<const PxFinding *> &findings,
                          const QVector<Allowance> &allowances)
{
    QVector<int> found;
    QVector<int> open; // those that begin before the finding, the innermost last
    int next = 0;
    for (const PxFinding *finding : findings) {
        const auto place = beginOf(finding->place);
        for (; next < allowances.size() && beginOf(allowances.at(next).part) <= place; ++next)
            open.append(next);
        while (!open.isEmpty() && endOf(allowances.at(open.last()).part) <= place)
            open.removeLast();
        found.append(open.isEmpty() ? -1 : open.last());
    }
    return found;
}

QPair<QString, QString> keyOf(const PxFinding &finding)
{
    return {finding.place.path, QLatin1String(finding.tag->name)};
}

} // namespace

void PxAllowances::add(const Allowance &allowance)
{
    m_allowances[{allowance.part.path, allowance.tag}].append(allowance);
}

QVector<PxAllowances::Allowance> PxAllowances::apply(QVector<PxFinding> *findings) const
{
    QHash<QPair<QString, QString>, QVector<const PxFinding *>> findingsOf;
    for (const PxFinding &finding : qAsConst(*findings))
        findingsOf[keyOf(finding)].append(&finding);
    QSet<const PxFinding *> allowed;
    QVector<Allowance> unused;
    for (auto it = m_allowances.begin(); it != m_allowances.end(); ++it) {
        QVector<Allowance> allowances = *it;
        std::stable_sort(allowances.begin(), allowances.end(), [](const auto &a, const auto &b) {
            return beginOf(a.part) < beginOf(b.part);
        });
        const QVector<const PxFinding *> candidates = findingsOf.value(it.key());
        const QVector<int> found = allowancesOf(candidates, allowances);
        for (int i = 0; i < found.size(); ++i) {
            if (found.at(i) >= 0)
                allowed.insert(candidates.at(i));
        }
        const QSet<int> used(found.begin(), found.end());
        for (int i = 0; i < allowances.size(); ++i) {
            if (!used.contains(i) && !allowances.at(i).isOfUse)
                unused.append(allowances.at(i));
        }
    }
    QVector<PxFinding> left;
    for (const PxFinding &finding : qAsConst(*findings)) {
        if (!allowed.contains(&finding))
            left.append(finding);
    }
    *findings = left;
    return unused;
}
