#include "geometry/PxPageRotationRedirect.h"

#include <QDebug>

PxPageRotationRedirect::PxPageRotationRedirect(int sourcePageNr, int targetPageNr, int angleInvert)
    : m_sourcePageNr(sourcePageNr)
    , m_targetPageNr(targetPageNr)
    , m_angleInvert(angleInvert)
{}

bool PxPageRotationRedirect::operator==(const PxPageRotationRedirect &other) const
{
    return m_sourcePageNr == other.m_sourcePageNr && m_targetPageNr == other.m_targetPageNr &&
           m_angleInvert == other.m_angleInvert;
}

QDebug operator<<(QDebug debug, const PxPageRotationRedirect &redirect)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxPageRotationRedirect(" << redirect.sourcePageNr() << " to "
                           << redirect.targetPageNr() << ", angle " << redirect.angleInvert()
                           << ')';
}
