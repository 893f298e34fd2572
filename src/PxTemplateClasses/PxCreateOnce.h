#pragma once

#include <QAtomicPointer>
#include <QMutex>

/**
 * Answers the object that `instance` points to, and creates it when it is first asked for.
 *
 * From several threads it is created once, under `mutex`, and published when it is complete: the
 * pointer alone tells a reader that all is there, locked or not. The object lives until the process
 * ends. Pointer and mutex are function-local statics of the caller, neither of which is destroyed:
 * that is why the mutex is no QMutex. `create` runs under the lock and must not ask for the same
 * instance.
 */
template <typename T, typename Create>
T *pxCreateOnce(QAtomicPointer<T> &instance, QBasicMutex &mutex, Create create)
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
