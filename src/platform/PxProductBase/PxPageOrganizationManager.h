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
    /** Created on first use, from any thread; never null, never destroyed. */
    static PxPageOrganizationManager *instance();

    /** Takes ownership; null is ignored. Earlier calculators are kept, but no longer asked. */
    void addCalculator(PxPageOrganizationCalculator *calculator);

    /** The answer of the last calculator. */
    PxPageCountOrganization pageCountOrganzation(const PxProductType &type) const;
    ///@{
    /** The same number of that answer, cast to int. */
    int minPages(const PxProductType &type) const;
    int maxPages(const PxProductType &type) const;
    int pageIncrement(const PxProductType &type) const;
    ///@}

private:
    PxPageOrganizationManager() = default;
    ~PxPageOrganizationManager() = default;
    Q_DISABLE_COPY(PxPageOrganizationManager)

    const PxPageOrganizationCalculator *calculator() const;

    mutable QReadWriteLock m_lock;
    // Never destroyed, like the manager: another thread may still be using an earlier one.
    QList<PxPageOrganizationCalculator *> m_calculators;
};
