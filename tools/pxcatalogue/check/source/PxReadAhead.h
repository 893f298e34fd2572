#pragma once

#include "check/source/PxCheckedFile.h"

#include <QStringList>

#include <array>
#include <condition_variable>
#include <future>
#include <memory>
#include <mutex>

/**
 * Reads files in a separate thread, a few ahead of the one being checked. That thread also destroys
 * the files that have been checked.
 *
 * Reading takes about as long as checking. The checks all run in one thread, because some count how
 * much they have done, and findings must not depend on the order in which threads run.
 */
class PxReadAhead
{
public:
    explicit PxReadAhead(const QStringList &paths);
    ~PxReadAhead();
    Q_DISABLE_COPY(PxReadAhead)

    /**
     * The next file in the order of the paths. Call it once for each path. It may destroy the file
     * that it returned before, unless somebody else has it, too.
     */
    const std::shared_ptr<const PxCheckedFile> &next();

private:
    // Enough to make up for files of different sizes; a large one takes much memory.
    static constexpr int maximumAhead = 4;

    void read();
    std::shared_ptr<const PxCheckedFile> &slot(int index)
    {
        return m_files[std::size_t(index % maximumAhead)];
    }
    template <typename Change>
    void change(Change change);
    template <typename Condition>
    void wait(Condition isMet);

    const QStringList m_paths;
    std::array<std::shared_ptr<const PxCheckedFile>, maximumAhead> m_files;
    int m_askedCount = 0;
    std::mutex m_mutex; // guards the next four members
    std::condition_variable m_changed;
    int m_readCount = 0;
    int m_doneCount = 0;
    bool m_isCancelled = false;
    std::future<void> m_reader; // the last member: all others outlive the thread
};
