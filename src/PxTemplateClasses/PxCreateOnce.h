#pragma once

#include <QAtomicPointer>
#include <QMutex>

#ifndef QT_NO_DEBUG
#include <QtGlobal>

/** While it exists, the thread is creating an object: none that asks for it meanwhile gets it. */
class PxCreation
{
public:
    /** Ends the program with a message where the thread would wait for itself. */
    explicit PxCreation(const void *object) : m_object(object), m_outer(ourInnermost)
    {
        for (const PxCreation *creation = m_outer; creation; creation = creation->m_outer) {
            if (creation->m_object == object)
                qFatal("an instance() is asked for while it is being created in the same thread: "
                       "is it asked by a message handler?");
        }
        ourInnermost = this;
    }
    ~PxCreation() { ourInnermost = m_outer; }
    Q_DISABLE_COPY(PxCreation)

private:
    static inline thread_local const PxCreation *ourInnermost = nullptr;

    const void *m_object;
    const PxCreation *m_outer;
};
#endif

/**
 * Answers the object that `instance` points to, and creates it when it is first asked for.
 *
 * From several threads it is created once, under `mutex`, and published when it is complete: the
 * pointer alone tells a reader that all is there, locked or not. The object lives until the process
 * ends. Pointer and mutex are function-local statics of the caller, neither of which is destroyed:
 * that is why the mutex is no QMutex. `create` runs under the lock and must not ask for the same
 * instance, nor may a message handler that hears of it: without QT_NO_DEBUG that ends the program
 * with a message, else it waits for ever.
 */
template <typename T, typename Create>
T *pxCreateOnce(QAtomicPointer<T> &instance, QBasicMutex &mutex, Create create)
{
    T *object = instance.loadAcquire();
    if (object)
        return object;
#ifndef QT_NO_DEBUG
    const PxCreation creation(&instance);
#endif
    const QMutexLocker lock(&mutex);
    object = instance.loadAcquire();
    if (!object) {
        object = create();
        instance.storeRelease(object);
    }
    return object;
}
