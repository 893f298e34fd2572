#pragma once

#include "check/PxCheckedFile.h"

#include <QSemaphore>

#include <array>
#include <atomic>
#include <future>

/**
 * Reads files in a thread of its own, a few ahead of those that are taken.
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

    /** The next file in the order of the paths; to be asked once for each of them. */
    std::unique_ptr<PxCheckedFile> take();

private:
    // Enough to make up for files of different sizes; a large one takes much memory.
    static constexpr int maximumAhead = 4;

    void read();

    QStringList m_paths;
    std::array<std::unique_ptr<PxCheckedFile>, maximumAhead> m_files; // file i at i % maximumAhead
    int m_takenCount = 0;
    QSemaphore m_free{maximumAhead};
    QSemaphore m_ready;
    std::atomic<bool> m_isCancelled{false};
    std::future<void> m_reader;
};
