#include "check/rules/PxFormatSearch.h"

#include "format/PxFormat.h"

namespace {

template <typename Visit>
void forEachRow(const PxElementRow &row, Visit visit)
{
    visit(row);
    for (const PxElementRow &child : row.children)
        forEachRow(child, visit);
}

} // namespace

const PxElementRow *PxFormatSearch::parentOf(const QString &element) const
{
    const auto isParent = [&element](const PxElementRow &row) {
        return PxFormat::isChildName(row, element);
    };
    for (const PxElementRow &child : m_from.children) {
        if (isParent(child))
            return &child;
    }
    if (m_parent && isParent(*m_parent))
        return m_parent;
    const PxElementRow *first = nullptr;
    forEachRow(m_root, [&](const PxElementRow &row) {
        if (!first && isParent(row))
            first = &row;
    });
    return first;
}

QStringList PxFormatSearch::ownersOf(const QString &attribute) const
{
    QStringList below;
    for (const PxElementRow &child : m_from.children) {
        if (PxFormat::attribute(child, attribute))
            below.append(QLatin1String(child.name));
    }
    if (!below.isEmpty())
        return below;
    if (m_parent && PxFormat::attribute(*m_parent, attribute))
        return {QLatin1String(m_parent->name)};
    QStringList all;
    forEachRow(m_root, [&](const PxElementRow &row) {
        if (PxFormat::attribute(row, attribute))
            all.append(QLatin1String(row.name));
    });
    all.removeDuplicates(); // elements of one name stand in several places
    return all;
}

QStringList PxFormatSearch::elementNames() const
{
    QStringList names;
    forEachRow(m_root, [&names](const PxElementRow &row) { names += PxFormat::childNames(row); });
    return names;
}
