#include "values/PxParallelReading.h"

#include <PxMessage.h>

#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <QVector>

#include <algorithm>
#include <atomic>
#include <memory>
#include <vector>

namespace {

constexpr int maximumThreads = 8; // what is not read in parallel leaves no use for more
constexpr int filesPerThread = 16;

int threadCount(int fileCount)
{
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("PX_THREADS", &isNumber);
    const int threads = isNumber && wanted > 0 ? wanted : QThread::idealThreadCount();
    return std::min({threads, maximumThreads, fileCount / filesPerThread});
}

/** The files of one call. Each thread takes the next one until none is left. */
class Files
{
public:
    Files(int count, const std::function<void(int)> &read)
        : m_read(read)
        , m_messages(std::size_t(count))
    {}

    void readNextOnes()
    {
        const int count = int(m_messages.size());
        for (int i = m_next++; i < count; i = m_next++) {
            {
                const PxMessageKeeper keeper(&m_messages[std::size_t(i)]);
                m_read(i);
            }
            if (++m_finished == count)
                m_allAreFinished.release();
        }
    }

    void waitForAll() { m_allAreFinished.acquire(); }

    void logMessages() const
    {
        for (const QVector<PxMessage> &messages : m_messages) {
            for (const PxMessage &message : messages)
                message.log();
        }
    }

private:
    const std::function<void(int)> m_read;
    std::vector<QVector<PxMessage>> m_messages; // of each file
    std::atomic_int m_next{0};
    std::atomic_int m_finished{0};
    QSemaphore m_allAreFinished;
};

/**
 * A pool waits forever for a thread that the system refuses to start. The files are read without
 * it, and such a pool is given up: it has nothing left to do.
 */
void endPool(std::unique_ptr<QThreadPool> pool)
{
    constexpr int milliseconds = 1000;
    if (!pool->waitForDone(milliseconds))
        pool.release();
}

} // namespace

void PxParallelReading::forEach(int count, const std::function<void(int)> &read)
{
    const int threads = threadCount(count);
    if (threads < 2) {
        for (int i = 0; i < count; ++i)
            read(i);
        return;
    }
    // Shared, because a thread may start so late that this call has returned.
    const auto files = std::make_shared<Files>(count, read);
    auto pool = std::make_unique<QThreadPool>();
    pool->setMaxThreadCount(threads - 1);
    pool->setStackSize(2 * 1024 * 1024);
    for (int i = 1; i < threads; ++i)
        pool->start([files] { files->readNextOnes(); });
    files->readNextOnes();
    files->waitForAll();
    endPool(std::move(pool));
    files->logMessages();
}
