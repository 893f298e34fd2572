#include "PxPageCountOrganization.h"

#include <QDebug>

bool PxPageCountOrganization::operator==(const PxPageCountOrganization &other) const
{
    return m_minimum == other.m_minimum && m_maximum == other.m_maximum &&
           m_increment == other.m_increment;
}

QDebug operator<<(QDebug debug, const PxPageCountOrganization &pageCounts)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxPageCountOrganization(" << pageCounts.minimum() << " to "
                           << pageCounts.maximum() << " by " << pageCounts.increment() << ')';
}
