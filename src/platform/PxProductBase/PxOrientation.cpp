#include "PxOrientation.h"

#include <QSizeF>

template class PxEnumWrapper<PxOrientationEnum>;

namespace {

constexpr PxKeyword<PxOrientationEnum> keywords[] = {
    {"portrait", PxOrientationPortrait},   {"landscape", PxOrientationLandscape},
    {"quadratic", PxOrientationQuadratic}, {"square", PxOrientationQuadratic},
    {"panorama", PxOrientationPanorama},   {"portraitpanorama", PxOrientationPortraitPanorama},
    {"round", PxOrientationRound},
};

PxOrientationEnum shapeOf(const QSizeF &size)
{
    // Written this way, the condition also holds for sizes that are not a number (NaN).
    if (!(size.width() > 0 && size.height() > 0))
        return static_cast<PxOrientationEnum>(0);
    if (size.width() > size.height())
        return PxOrientationLandscape;
    return size.height() > size.width() ? PxOrientationPortrait : PxOrientationQuadratic;
}

} // namespace

PxOrientation::PxOrientation(const QString &text)
{
    setValue(text);
}

PxOrientation::PxOrientation(const QString &text, const QSizeF &size) : PxOrientation(text)
{
    if (isNull())
        *this = shapeOf(size);
}

PxOrientation::~PxOrientation() = default;

void PxOrientation::fillTable(PxEnumToStringTable<PxOrientationEnum> *table) const
{
    table->insert(keywords);
}
