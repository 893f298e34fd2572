#pragma once

#include "PxPageCountOrganization.h"

#include <QList>
#include <QReadWriteLock>

class PxPageOrganizationCalculator;
class PxProductType;

/**
 * Answers how many pages a product may have, by asking the calculator that was added last.
 *
 * Without a calculator every product has one page. Every operation may be called from any thread.
 */
class PXPRODUCTBASE_EXPORT PxPageOrganizationManager
{
public:
    static PxPageOrganizationManager *instance();

    /** Takes ownership; null is ignored. Earlier calculators are kept, but no longer asked. */
    void addCalculator(PxPageOrganizationCalculator *calculator);

    PxPageCountOrganization pageCountOrganzation(const PxProductType &type) const;
    int minPages(const PxProductType &type) const;
    int maxPages(const PxProductType &type) const;
    int pageIncrement(const PxProductType &type) const;

private:
    PxPageOrganizationManager() = default;
    ~PxPageOrganizationManager() = default;
    Q_DISABLE_COPY(PxPageOrganizationManager)

    const PxPageOrganizationCalculator *calculator() const;

    mutable QReadWriteLock m_lock;
    // Never destroyed, like the manager: another thread may still be using an earlier one.
    QList<PxPageOrganizationCalculator *> m_calculators;
};
