#pragma once

#include <QAtomicPointer>
#include <QMutex>

#ifndef QT_NO_DEBUG
#include <QtGlobal>

/** Marks an object that this thread is creating, so that a second request for it is noticed. */
class PxCreation
{
public:
    /**
     * Ends the program with a message if this thread is already creating the object: it would wait
     * for itself.
     */
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
 * Returns the object that `instance` points to, and creates it on first use.
 *
 * If several threads ask at once, one of them creates the object under `mutex` and publishes the
 * pointer when the object is complete, so that readers need no lock. The object lives until the
 * process ends. Pointer and mutex are function-local statics of the caller and never destroyed,
 * which is why the mutex is a QBasicMutex.
 *
 * `create` runs under the lock. Neither `create` nor a message handler that it calls by logging may
 * ask for the same instance: a debug build then ends the program with a message, and a build with
 * QT_NO_DEBUG waits forever.
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
