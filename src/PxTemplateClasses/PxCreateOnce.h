#pragma once

#include <QAtomicPointer>
#include <QMutex>

/**
 * Answers the object that `instance` points to, and creates it when it is first asked for.
 *
 * From several threads it is created once, under `mutex`, and published when it is complete. Both
 * loads acquire: also the thread that lost the race sees all that `create` has written. The object
 * lives until the process ends. Both arguments are function-local statics of the caller.
 */
template <typename T, typename Create>
T *pxCreateOnce(QAtomicPointer<T> &instance, QMutex &mutex, Create create)
{
    T *object = instance.loadAcquire();
    if (object)
        return object;
    const QMutexLocker lock(&mutex);
    object = instance.loadAcquire();
    if (!object) {
        object = create();
        instance.storeRelease(object);
    }
    return object;
}
