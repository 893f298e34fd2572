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
            slot(i).reset(); // before the next one takes memory
            slot(i) = std::make_unique<PxCheckedFile>(m_paths[i]);
            m_ready.release();
        }
    } catch (...) {
        m_ready.release(); // nobody shall wait for what does not come
        throw;
    }
}

const PxCheckedFile &PxReadAhead::next()
{
    if (m_count > 0)
        m_free.release();
    m_ready.acquire();
    const std::unique_ptr<PxCheckedFile> &file = slot(m_count++);
    if (!file)
        m_reader.get(); // throws what has kept the file from being read
    return *file;
}
