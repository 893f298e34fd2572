#include "geometry/PxMargins.h"

#include <QDebug>

PxMargins::PxMargins()
{
    static const auto &ourNullMargins =
        *new QExplicitlySharedDataPointer<const PxMarginsImpl>(new PxMarginsImpl);
    d = ourNullMargins;
}

PxMargins::PxMargins(int top, int bottom, int left, int right)
    : d(new PxMarginsImpl(top, bottom, left, right))
{}

PxMargins::PxMargins(const PxMargins &other) = default;
PxMargins &PxMargins::operator=(const PxMargins &other) = default;
PxMargins::~PxMargins() = default;

QDebug operator<<(QDebug debug, const PxMargins &margins)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "PxMargins(top " << margins.top() << ", bottom " << margins.bottom()
                           << ", left " << margins.left() << ", right " << margins.right() << ')';
}
