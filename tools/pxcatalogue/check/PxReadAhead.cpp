#include "check/PxReadAhead.h"

PxReadAhead::PxReadAhead(const QStringList &paths)
    : m_paths(paths)
    , m_reader(std::async(std::launch::async, [this] { read(); }))
{}

PxReadAhead::~PxReadAhead()
{
    m_isCancelled = true;
    m_free.release();
}

void PxReadAhead::read()
{
    try {
        for (int i = 0; i < m_paths.size(); ++i) {
            m_free.acquire();
            if (m_isCancelled)
                return;
            m_files[std::size_t(i % maximumAhead)] = std::make_unique<PxCheckedFile>(m_paths[i]);
            m_ready.release();
        }
    } catch (...) {
        m_ready.release(m_paths.size()); // nobody shall wait for what does not come
        throw;
    }
}

std::unique_ptr<PxCheckedFile> PxReadAhead::take()
{
    m_ready.acquire();
    std::unique_ptr<PxCheckedFile> file =
        std::move(m_files[std::size_t(m_takenCount++ % maximumAhead)]);
    if (!file)
        m_reader.get(); // throws what has kept the file from being read
    m_free.release();
    return file;
}
