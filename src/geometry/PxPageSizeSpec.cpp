#include "geometry/PxPageSizeSpec.h"

#include "geometry/PxClampedArithmetic.h"

#include <PxMessage.h>

#include <QAtomicInteger>
#include <QDebug>

PxPageSizeSpec::PxPageSizeSpec(const QSize &usableSize, const PxMargins &bleedMargins,
                               const PxMargins &safetyMargins, const PxOrientation &orientation,
                               int horizontalClampExtra)
    : m_usableSize(usableSize)
    , m_bleedMargins(bleedMargins)
    , m_safetyMargins(safetyMargins)
    , m_orientation(orientation)
    , m_horizontalClampExtra(horizontalClampExtra)
{}

PxPageSizeSpec::PxPageSizeSpec(const PxPageSizeSpec &other)
    : m_usableSize(other.m_usableSize)
    , m_bleedMargins(other.m_bleedMargins)
    , m_safetyMargins(other.m_safetyMargins)
    , m_orientation(other.m_orientation)
    , m_horizontalClampExtra(other.m_horizontalClampExtra)
{
    // No memory order is needed: this only counts, in any thread.
    static QAtomicInteger<quint32> ourCopies;
    const quint32 copies = ourCopies.fetchAndAddRelaxed(1) + 1;
    if (copies % 100 == 0)
        PxMessageLogger("PxPageSizeSpec", 45, Q_FUNC_INFO).debug() << "PxPageSizeSpec__CC"
                                                                   << " counts " << copies;
}

PxPageSizeSpec &PxPageSizeSpec::operator=(const PxPageSizeSpec &other) = default;
PxPageSizeSpec::~PxPageSizeSpec() = default;

QSize PxPageSizeSpec::totalSize() const
{
    return pxClampedSum(m_usableSize, m_bleedMargins.totalMarginWH());
}

QDebug operator<<(QDebug debug, const PxPageSizeSpec &size)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxPageSizeSpec(" << size.usableSize() << ", bleed "
                           << size.bleedMargins() << ", safety " << size.safetyMargins() << ", "
                           << size.orientation() << ", clamp " << size.horizontalClampExtra()
                           << ')';
}
