#pragma once

#include "check/PxCheckedFile.h"

#include <QSemaphore>

#include <array>
#include <atomic>
#include <future>

/**
 * Reads files in a thread of its own, a few ahead of the one that is looked at, and destroys them
 * there.
 *
 * Reading takes about as long as checking. Checks themselves run in one thread: some count what
 * they have done so far, and findings shall not depend on who was first.
 */
class PxReadAhead
{
public:
    explicit PxReadAhead(const QStringList &paths);
    ~PxReadAhead();
    Q_DISABLE_COPY(PxReadAhead)

    /**
     * The next file in the order of the paths; to be asked once for each of them. The one before
     * is gone then.
     */
    const PxCheckedFile &next();

private:
    // Enough to make up for files of different sizes; a large one takes much memory.
    static constexpr int maximumAhead = 4;

    void read();
    std::unique_ptr<PxCheckedFile> &slot(int index)
    {
        return m_files[std::size_t(index % maximumAhead)];
    }

    const QStringList m_paths;
    std::array<std::unique_ptr<PxCheckedFile>, maximumAhead> m_files;
    int m_count = 0; // of those that have been asked for
    QSemaphore m_free{maximumAhead};
    QSemaphore m_ready;
    std::atomic<bool> m_isCancelled{false};
    std::future<void> m_reader;
};
