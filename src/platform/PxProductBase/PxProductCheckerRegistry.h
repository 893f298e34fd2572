#pragma once

#include "PxProductBaseExport.h"

#include <QList>
#include <QReadWriteLock>

class PxProductChecker;
class PxProductType;

/** All product checkers of the process. Every operation may be called from any thread. */
class PXPRODUCTBASE_EXPORT PxProductCheckerRegistry
{
public:
    static PxProductCheckerRegistry *instance();

    /**
     * Adds a checker, which stays the caller's and must live until the process ends.
     *
     * False for null and for a checker that is registered already.
     */
    bool registerChecker(PxProductChecker *checker);

    /** One of the checkers of this kind finds the type valid; kind 0 asks all checkers. */
    bool isValid(const PxProductType &type, int kind) const;

private:
    PxProductCheckerRegistry() = default;
    ~PxProductCheckerRegistry() = default;
    Q_DISABLE_COPY(PxProductCheckerRegistry)

    QList<PxProductChecker *> checkers() const;

    mutable QReadWriteLock m_lock;
    QList<PxProductChecker *> m_checkers;
};
