#include "writing/PxProgress.h"

#include "writing/PxTerminal.h"

namespace {

constexpr qint64 firstLine = 1000; // milliseconds
constexpr qint64 betweenLines = 200;

} // namespace

PxProgress::PxProgress(int count, const QString &what)
    : m_count(count)
    , m_what(what)
    , m_nextLine(firstLine)
{
    m_timer.start();
}

PxProgress::~PxProgress()
{
    if (m_isShown)
        PxTerminal::showProgress(QString());
}

void PxProgress::advance()
{
    const int done = ++m_done;
    const std::unique_lock<std::mutex> lock(m_mutex, std::try_to_lock);
    if (!lock || m_timer.elapsed() < m_nextLine)
        return;
    m_nextLine = m_timer.elapsed() + betweenLines;
    m_isShown = true;
    PxTerminal::showProgress(QString("%1 of %2 %3").arg(done).arg(m_count).arg(m_what));
}
