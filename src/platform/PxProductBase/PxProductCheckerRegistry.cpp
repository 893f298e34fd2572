#include "PxProductCheckerRegistry.h"

#include "PxProductChecker.h"

#include <PxCreateOnce.h>

#include <QAtomicPointer>
#include <QMutex>

#include <algorithm>

PxProductCheckerRegistry *PxProductCheckerRegistry::instance()
{
    static QAtomicPointer<PxProductCheckerRegistry> ourInstance;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex, [] { return new PxProductCheckerRegistry; });
}

bool PxProductCheckerRegistry::registerChecker(PxProductChecker *checker)
{
    const QWriteLocker lock(&m_lock);
    if (!checker || m_checkers.contains(checker))
        return false;
    m_checkers.append(checker);
    return true;
}

bool PxProductCheckerRegistry::isValid(const PxProductType &type, int kind) const
{
    // Works on a copy of the list, without the lock: a checker may use the registry itself.
    const QList<PxProductChecker *> all = checkers();
    return std::any_of(all.begin(), all.end(), [&type, kind](const PxProductChecker *checker) {
        return (kind == 0 || checker->type() == kind) && checker->isValid(type);
    });
}

QList<PxProductChecker *> PxProductCheckerRegistry::checkers() const
{
    const QReadLocker lock(&m_lock);
    return m_checkers;
}
