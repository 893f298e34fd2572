#include "PxXMLScratch.h"

#include <QVector>

#include <algorithm>
#include <mutex>

namespace {

std::mutex scratchMutex;

/** Call this under the mutex only. */
QVector<PxXMLScratch *> &idleScratches()
{
    static auto &ourIdleScratches = *new QVector<PxXMLScratch *>;
    return ourIdleScratches;
}

} // namespace

PxXMLScratch::Loan PxXMLScratch::lend()
{
    {
        const std::lock_guard lock(scratchMutex);
        QVector<PxXMLScratch *> &idle = idleScratches();
        const auto own = std::find_if(idle.begin(), idle.end(), [](const PxXMLScratch *scratch) {
            return scratch->m_thread == std::this_thread::get_id();
        });
        if (own != idle.end())
            return Loan(idle.takeAt(int(own - idle.begin())));
    }
    return Loan(new PxXMLScratch);
}

void PxXMLScratch::GiveBack::operator()(PxXMLScratch *scratch) const
{
    constexpr int maximumIdle = 16;
    if (scratch->m_bytes.capacity() > usualFileSize) {
        scratch->m_bytes = QByteArray();
        scratch->m_bytes.reserve(usualFileSize);
    }
    PxXMLScratch *oldest = nullptr; // perhaps of a thread that has ended
    {
        const std::lock_guard lock(scratchMutex);
        QVector<PxXMLScratch *> &idle = idleScratches();
        if (idle.size() == maximumIdle)
            oldest = idle.takeFirst();
        idle.append(scratch);
    }
    delete oldest;
}
