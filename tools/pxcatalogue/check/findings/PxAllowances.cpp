#include "check/findings/PxAllowances.h"

#include <algorithm>
#include <tuple>

namespace {

auto beginOf(const PxPlace &place)
{
    return std::make_tuple(place.line, place.column);
}

auto endOf(const PxPlace &place)
{
    return std::make_tuple(place.endLine, place.endColumn);
}

} // namespace

void PxAllowances::add(const Allowance &allowance)
{
    OfTag &ofTag = m_allowances[{allowance.part.path, allowance.tag}];
    ofTag.nested.append({allowance});
    ofTag.isSorted = false;
}

bool PxAllowances::allows(const QString &tag, const PxPlace &place)
{
    const auto found = m_allowances.find({place.path, tag});
    if (found == m_allowances.end())
        return false;
    if (!found->isSorted)
        sort(&*found);
    QVector<Nested> &nested = found->nested;
    const auto next =
        std::upper_bound(nested.begin(), nested.end(), place, [](const auto &p, const Nested &n) {
            return beginOf(p) < beginOf(n.allowance.part);
        });
    int index = int(next - nested.begin()) - 1;
    while (index >= 0 && endOf(nested[index].allowance.part) <= beginOf(place))
        index = nested[index].outer;
    if (index < 0)
        return false;
    nested[index].allowance.silencesSomething = true;
    return true;
}

void PxAllowances::sort(OfTag *allowances)
{
    QVector<Nested> &nested = allowances->nested;
    std::stable_sort(nested.begin(), nested.end(), [](const Nested &a, const Nested &b) {
        return beginOf(a.allowance.part) < beginOf(b.allowance.part);
    });
    int outer = -1;
    for (int i = 0; i < nested.size(); ++i) {
        while (outer >= 0 &&
               endOf(nested[outer].allowance.part) <= beginOf(nested[i].allowance.part))
            outer = nested[outer].outer;
        nested[i].outer = outer;
        outer = i;
    }
    allowances->isSorted = true;
}

QVector<PxAllowances::Allowance> PxAllowances::unused() const
{
    QVector<Allowance> unused;
    for (const OfTag &ofTag : m_allowances) {
        for (const Nested &nested : ofTag.nested) {
            if (!nested.allowance.silencesSomething)
                unused.append(nested.allowance);
        }
    }
    return unused;
}
