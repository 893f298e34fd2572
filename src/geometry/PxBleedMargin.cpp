#include "geometry/PxBleedMargin.h"

bool PxBleedMargin::operator==(const PxBleedMargin &other) const
{
    return m_horizontal == other.m_horizontal && m_vertical == other.m_vertical;
}
