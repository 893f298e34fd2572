#pragma once

#include <QElapsedTimer>
#include <QString>

#include <atomic>
#include <mutex>

/**
 * A line on stderr that says how much is done, if stderr is a terminal and the work takes longer
 * than a second. It is gone when the work has ended. Several threads may advance it.
 */
class PxProgress
{
public:
    /** For example 1100 "pages". */
    PxProgress(int count, const QString &what);
    ~PxProgress();
    Q_DISABLE_COPY(PxProgress)

    void advance();

private:
    const int m_count;
    const QString m_what;
    std::atomic<int> m_done{0};
    std::mutex m_mutex; // of the rest
    QElapsedTimer m_timer;
    qint64 m_nextLine; // in milliseconds
    bool m_isShown = false;
};
