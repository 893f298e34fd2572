#include "values/PxParallelReading.h"

#include <PxMessage.h>

#include <QThread>
#include <QThreadPool>
#include <QVector>

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <vector>

namespace {

constexpr int maximumThreads = 8; // with more the rest, which one thread does, takes the most time
constexpr int filesPerThread = 16;

int threadCount(int fileCount)
{
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("PX_THREADS", &isNumber);
    const int threads = isNumber && wanted > 0 ? wanted : QThread::idealThreadCount();
    return std::min({threads, maximumThreads, fileCount / filesPerThread});
}

/**
 * The files of one call. Each thread takes the next one until none is left. The caller's thread
 * reads files, too, and writes the messages of the first ones as soon as these are read.
 */
class Files
{
public:
    Files(int count, const std::function<void(int)> &read)
        : m_read(read)
        , m_files(std::size_t(count))
    {}

    void readInPool()
    {
        std::unique_lock lock(m_mutex);
        ++m_runningThreads;
        do {
            m_changed.wait(lock, [this] { return m_keptCharacters <= maximumKept; });
        } while (readNext(lock));
        --m_runningThreads;
        m_changed.notify_all();
    }

    /** Returns when all files are read. Throws what reading a file has thrown first. */
    void readInCaller()
    {
        std::unique_lock lock(m_mutex);
        while (readNext(lock))
            writeMessages(lock, m_keptCharacters > maximumKept);
        while (m_written < m_next)
            writeMessages(lock, true);
        m_changed.wait(lock, [this] { return m_runningThreads == 0; });
        if (m_exception)
            std::rethrow_exception(m_exception);
    }

private:
    struct File
    {
        bool isRead = false;
        QVector<PxMessage> messages;
    };

    // Threads do not read on while more than this waits to be written.
    static constexpr qint64 maximumKept = 1000000;

    static qint64 characters(const QVector<PxMessage> &messages)
    {
        qint64 count = 0;
        for (const PxMessage &message : messages)
            count += message.text.size();
        return count;
    }

    /** Returns false if no file is left. */
    bool readNext(std::unique_lock<std::mutex> &lock)
    {
        if (m_next == m_files.size() || m_exception)
            return false;
        const std::size_t number = m_next++;
        File &file = m_files[number];
        lock.unlock();
        std::exception_ptr exception;
        try {
            const PxMessageKeeper keeper(&file.messages);
            m_read(int(number));
        } catch (...) { // out of memory; a thread of the pool must not end the process
            exception = std::current_exception();
        }
        lock.lock();
        if (!m_exception)
            m_exception = exception;
        m_keptCharacters += characters(file.messages);
        file.isRead = true;
        m_changed.notify_all();
        return true;
    }

    /** Those of the first files that are read; waits for one if `waits`. */
    void writeMessages(std::unique_lock<std::mutex> &lock, bool waits)
    {
        if (waits)
            m_changed.wait(lock, [this] { return m_files[m_written].isRead; });
        while (m_written < m_next && m_files[m_written].isRead) {
            const QVector<PxMessage> messages = std::move(m_files[m_written++].messages);
            m_keptCharacters -= characters(messages);
            m_changed.notify_all();
            lock.unlock(); // the message handler is the application's
            for (const PxMessage &message : messages)
                message.log();
            lock.lock();
        }
    }

    const std::function<void(int)> m_read;
    std::mutex m_mutex; // protects all that follows
    std::condition_variable m_changed;
    std::vector<File> m_files;
    std::size_t m_next = 0;
    std::size_t m_written = 0;
    qint64 m_keptCharacters = 0;
    int m_runningThreads = 0;
    std::exception_ptr m_exception;
};

/**
 * A pool waits forever for a thread that the system refuses to start. The files are read without
 * it, and such a pool is given up.
 */
void endPool(QThreadPool *pool)
{
    constexpr int milliseconds = 100;
    static std::mutex ourMutex;
    static auto &ourGivenUpPools = *new std::vector<QThreadPool *>;
    if (pool->waitForDone(milliseconds)) {
        delete pool;
        return;
    }
    const std::lock_guard lock(ourMutex);
    ourGivenUpPools.push_back(pool);
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
    const auto files = std::make_shared<Files>(count, read); // a thread may start too late
    const std::unique_ptr<QThreadPool, decltype(&endPool)> pool(new QThreadPool, &endPool);
    pool->setMaxThreadCount(threads - 1);
    pool->setExpiryTimeout(0);
    pool->setStackSize(2 * 1024 * 1024);
    for (int i = 1; i < threads; ++i)
        pool->start([files] { files->readInPool(); });
    files->readInCaller();
}
