#include "check/findings/PxFileFindings.h"

void PxFileFindings::add(const char *tag, const PxSourceRange &range, const QString &message,
                         const QString &now, const QString &hint)
{
    m_isEmpty = false;
    m_file.add(m_findings, tag, range, message, now, hint);
}
