#include "check/PxFileFindings.h"

void PxFileFindings::add(const char *tag, const PxSourceRange &range, const QString &message,
                         const QString &now, const QString &hint)
{
    if (isFull())
        return;
    ++m_count;
    m_file.add(m_findings, tag, range, message, now, hint);
}
