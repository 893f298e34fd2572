#include "geometry/PxMargins.h"

PxMargins::PxMargins()
{
    static const QExplicitlySharedDataPointer<const PxMarginsImpl> ourNullMargins(
        new PxMarginsImpl);
    d = ourNullMargins;
}

PxMargins::PxMargins(int top, int bottom, int left, int right)
    : d(new PxMarginsImpl(top, bottom, left, right))
{}

PxMargins::PxMargins(const PxMargins &other) = default;
PxMargins &PxMargins::operator=(const PxMargins &other) = default;
PxMargins::~PxMargins() = default;
