#include "PxXMLScratch.h"

#include <QVector>

#include <algorithm>
#include <mutex>

namespace {

std::mutex scratchMutex;

/** Call this under the mutex only. */
QVector<PxXMLScratch *> &idleOnes()
{
    static auto &ourIdleOnes = *new QVector<PxXMLScratch *>;
    return ourIdleOnes;
}

} // namespace

PxXMLScratch::Loan PxXMLScratch::lend()
{
    const std::lock_guard lock(scratchMutex);
    QVector<PxXMLScratch *> &idle = idleOnes();
    const auto own = std::find_if(idle.begin(), idle.end(), [](const PxXMLScratch *scratch) {
        return scratch->m_thread == std::this_thread::get_id();
    });
    return Loan(own == idle.end() ? new PxXMLScratch : idle.takeAt(int(own - idle.begin())));
}

void PxXMLScratch::GiveBack::operator()(PxXMLScratch *scratch) const
{
    constexpr int maximumIdle = 16;
    if (scratch->m_bytes.capacity() > usualFileSize) {
        scratch->m_bytes = QByteArray();
        scratch->m_bytes.reserve(usualFileSize);
    }
    const std::lock_guard lock(scratchMutex);
    if (idleOnes().size() < maximumIdle)
        idleOnes().append(scratch);
    else
        delete scratch;
}
