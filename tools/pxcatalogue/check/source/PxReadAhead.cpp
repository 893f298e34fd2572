#include "check/source/PxReadAhead.h"

PxReadAhead::PxReadAhead(const QStringList &paths)
    : m_paths(paths)
    , m_reader(std::async(std::launch::async, [this] { read(); }))
{}

PxReadAhead::~PxReadAhead()
{
    change([this] { m_isCancelled = true; });
}

void PxReadAhead::read()
{
    try {
        for (int i = 0; i < m_paths.size(); ++i) {
            bool isCancelled = false;
            wait([&] {
                isCancelled = m_isCancelled;
                return isCancelled || i < m_doneCount + maximumAhead;
            });
            if (isCancelled)
                return;
            slot(i).reset(); // first, so that the next file can use the memory
            slot(i) = std::make_shared<const PxCheckedFile>(m_paths[i]);
            change([this] { ++m_readCount; });
        }
    } catch (...) {
        change([this] { ++m_readCount; }); // ends the wait of next() for this file
        throw;
    }
}

const std::shared_ptr<const PxCheckedFile> &PxReadAhead::next()
{
    change([this] { m_doneCount = m_askedCount; });
    wait([this] { return m_readCount > m_askedCount; });
    const std::shared_ptr<const PxCheckedFile> &file = slot(m_askedCount++);
    if (!file)
        m_reader.get(); // throws the exception that ended the thread
    return file;
}

template <typename Change>
void PxReadAhead::change(Change change)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        change();
    }
    m_changed.notify_all();
}

template <typename Condition>
void PxReadAhead::wait(Condition isMet)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, isMet);
}
