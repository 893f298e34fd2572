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
    /** Created on first use, from any thread; never null, never destroyed. */
    static PxProductCheckerRegistry *instance();

    /**
     * Adds a checker. The caller keeps it and must keep it alive until the process ends.
     *
     * Returns false for null and for a checker that is already registered.
     */
    bool registerChecker(PxProductChecker *checker);

    /** Whether one of the checkers of this kind accepts the type; kind 0 asks all checkers. */
    bool isValid(const PxProductType &type, int kind) const;

private:
    PxProductCheckerRegistry() = default;
    ~PxProductCheckerRegistry() = default;
    Q_DISABLE_COPY(PxProductCheckerRegistry)

    QList<PxProductChecker *> checkers() const;

    mutable QReadWriteLock m_lock;
    QList<PxProductChecker *> m_checkers;
};
