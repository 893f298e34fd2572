#include "PxPageOrganizationManager.h"

#include "PxPageOrganizationCalculator.h"

#include <PxCreateOnce.h>

#include <QAtomicPointer>
#include <QMutex>

PxPageOrganizationManager *PxPageOrganizationManager::instance()
{
    static QAtomicPointer<PxPageOrganizationManager> ourInstance;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex, [] { return new PxPageOrganizationManager; });
}

void PxPageOrganizationManager::addCalculator(PxPageOrganizationCalculator *calculator)
{
    if (!calculator)
        return;
    const QWriteLocker lock(&m_lock);
    m_calculators.append(calculator);
}

PxPageCountOrganization PxPageOrganizationManager::pageCountOrganzation(
    const PxProductType &type) const
{
    // The calculator is called without the lock: it may use the manager itself.
    const PxPageOrganizationCalculator *last = calculator();
    return last ? last->createPageOrganization(type) : PxPageCountOrganization(1, 1, 0);
}

int PxPageOrganizationManager::minPages(const PxProductType &type) const
{
    return int(pageCountOrganzation(type).minimum());
}

int PxPageOrganizationManager::maxPages(const PxProductType &type) const
{
    return int(pageCountOrganzation(type).maximum());
}

int PxPageOrganizationManager::pageIncrement(const PxProductType &type) const
{
    return int(pageCountOrganzation(type).increment());
}

const PxPageOrganizationCalculator *PxPageOrganizationManager::calculator() const
{
    const QReadLocker lock(&m_lock);
    return m_calculators.isEmpty() ? nullptr : m_calculators.last();
}
