#include "geometry/PxPageRotationRedirect.h"

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
