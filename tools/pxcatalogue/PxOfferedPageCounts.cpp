#include "PxOfferedPageCounts.h"

#include <PxPageCountOrganization.h>
#include <PxProductProperties.h>

#include <QDebug>
#include <QJsonObject>

namespace {

PxPageCountOrganization organizationOf(const PxProductTypeConfigRegistry *registry,
                                       const PxProductType &type)
{
    // The platform asks for current products only: a legacy one has what its own file says.
    if (registry == PxProductTypeConfigRegistry::instance())
        return PxPageOrganizationManager::instance()->pageCountOrganzation(type);
    return {unsigned(registry->minPages(type)), unsigned(registry->maxPages(type)),
            unsigned(registry->pageIncrement(type))};
}

} // namespace

PxOfferedPageCounts::PxOfferedPageCounts(const PxProductTypeConfigRegistry *registry,
                                         const PxProductType &type)
    : PxOfferedPageCounts(registry->description(type), organizationOf(registry, type))
{}

PxOfferedPageCounts::PxOfferedPageCounts(const PxProductTypeDescription *description,
                                         const PxPageCountOrganization &organization)
    : m_description(description)
    , m_minimum(int(organization.minimum()))
    , m_maximum(int(organization.maximum()))
    , m_increment(int(organization.increment()))
{}

bool PxOfferedPageCounts::contains(int pageCount) const
{
    if (pageCount < m_minimum || pageCount > m_maximum)
        return false;
    const bool isStep = m_increment > 0 && (qint64(pageCount) - m_minimum) % m_increment == 0;
    // A book with a spine has one for every page count; one without has the width 0 for all.
    const bool hasSpine =
        m_description->spineWidth(m_minimum) <= 0 || m_description->spineWidth(pageCount) > 0;
    return hasSpine && (isStep || pageCount == m_minimum || pageCount == m_maximum);
}

QList<int> PxOfferedPageCounts::nearest(int pageCount) const
{
    const int smallest = qMax(m_minimum, 1);
    const int largest = qMin(m_maximum, maximumShown);
    int smaller = qMin(pageCount - 1, largest);
    while (smaller >= smallest && !contains(smaller))
        --smaller;
    int larger = qMax(pageCount + 1, smallest);
    while (larger <= largest && !contains(larger))
        ++larger;
    QList<int> nearest;
    if (smaller >= smallest)
        nearest.append(smaller);
    if (larger <= largest)
        nearest.append(larger);
    return nearest;
}

int PxOfferedPageCounts::shown(int wanted) const
{
    // Every entry of the page list may stand for that many pages: a million is enough for anyone.
    const int entries = qMax(1, m_description->countAbstractPages());
    const int limit = qBound(1, 1000000 / entries, maximumShown);
    const int pageCount = wanted > 0 ? wanted : standard();
    if (pageCount <= limit)
        return pageCount;
    qWarning("%d pages are too many to show: %d are shown", pageCount, limit);
    return limit;
}

QJsonValue PxOfferedPageCounts::toJson() const
{
    if (m_minimum > m_maximum)
        return QJsonValue();
    return QJsonObject{{QStringLiteral("minimum"), m_minimum},
                       {QStringLiteral("maximum"), m_maximum},
                       {QStringLiteral("increment"), m_increment}};
}

int PxOfferedPageCounts::standard() const
{
    if (m_description->defaultSellingPages() > 0)
        return m_description->defaultSellingPages();
    return m_minimum <= m_maximum ? qMax(m_minimum, 1) : 1;
}
