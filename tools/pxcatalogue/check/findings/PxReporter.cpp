#include "check/findings/PxReporter.h"

#include "check/PxCheckLimits.h"

namespace {

QString shortened(const QString &text)
{
    return text.size() <= PxCheckLimits::messageLength
               ? text
               : text.left(PxCheckLimits::messageLength) + "…";
}

} // namespace

PxAddedFinding &PxAddedFinding::now(const QString &text)
{
    if (m_finding)
        m_finding->now = shortened(text);
    return *this;
}

PxAddedFinding &PxAddedFinding::hint(const QString &text)
{
    if (m_finding)
        m_finding->hint = shortened(text);
    return *this;
}

PxAddedFinding &PxAddedFinding::otherPlace(const PxPlace &place)
{
    if (m_finding)
        m_finding->otherPlace = place;
    return *this;
}

PxAddedFinding PxReporter::add(PxTag tag, const PxSourceRange &range, const QString &message) const
{
    return add(tag, m_file->place(range), message);
}

PxAddedFinding PxReporter::add(PxTag tag, const PxPlace &place, const QString &message) const
{
    return PxAddedFinding(m_findings.add(tag, place, shortened(message)));
}

QString PxReporter::line(const PxSourceRange &range) const
{
    return m_file->place(range).seenFrom(m_file->path());
}
