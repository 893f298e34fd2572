#include "PxXMLTextPool.h"

#include <QHashFunctions>
#include <QVector>

#include <algorithm>
#include <mutex>

namespace {

std::mutex poolMutex;

/** Call this under the mutex only. */
QVector<PxXMLTextPool *> &idlePools()
{
    static auto &ourPools = *new QVector<PxXMLTextPool *>;
    return ourPools;
}

} // namespace

PxXMLTextPool::Loan PxXMLTextPool::lend()
{
    const std::lock_guard lock(poolMutex);
    QVector<PxXMLTextPool *> &idle = idlePools();
    const auto own = std::find_if(idle.begin(), idle.end(), [](const PxXMLTextPool *pool) {
        return pool->m_thread == std::this_thread::get_id();
    });
    return Loan(own == idle.end() ? new PxXMLTextPool : idle.takeAt(int(own - idle.begin())));
}

void PxXMLTextPool::GiveBack::operator()(PxXMLTextPool *pool) const
{
    constexpr int maximumIdle = 16;
    const std::lock_guard lock(poolMutex);
    if (idlePools().size() < maximumIdle)
        idlePools().append(pool);
    else
        delete pool;
}

QString PxXMLTextPool::text(std::string_view utf8)
{
    constexpr std::size_t maximumLength = 64; // longer ones seldom recur
    if (utf8.empty())
        return QLatin1String("");
    if (utf8.size() > maximumLength)
        return QString::fromUtf8(utf8.data(), int(utf8.size()));
    Slot &slot = m_slots[qHashBits(utf8.data(), utf8.size()) % m_slots.size()];
    if (std::string_view(slot.utf8.constData(), std::size_t(slot.utf8.size())) != utf8) {
        slot.utf8 = QByteArray(utf8.data(), int(utf8.size()));
        slot.text = QString::fromUtf8(slot.utf8);
    }
    return slot.text;
}
