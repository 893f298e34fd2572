#include "geometry/PxBleedMargin.h"

#include <QDebug>

bool PxBleedMargin::operator==(const PxBleedMargin &other) const
{
    return m_horizontal == other.m_horizontal && m_vertical == other.m_vertical;
}

QDebug operator<<(QDebug debug, const PxBleedMargin &margin)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxBleedMargin(horizontal " << margin.horizontal() << ", vertical "
                           << margin.vertical() << ')';
}
