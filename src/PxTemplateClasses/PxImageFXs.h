#pragma once

#include "PxKeyword.h"

/** Effects that are applied to every image of a product; a set of flags. */
enum PxImageFXs : int {
    PxImageFXsNone = 0,
    PxImageFXsGrayscale = 1,
    PxImageFXsPreserveAlphaChannel = 4,
};

namespace EnumHelper {

inline const QHash<QString, PxImageFXs> &globalMapImageFXsString = *[] {
    constexpr PxKeyword<PxImageFXs> keywords[] = {
        {"grayscale", PxImageFXsGrayscale},
        {"none", PxImageFXsNone},
        {"preserve_alpha_channel", PxImageFXsPreserveAlphaChannel},
    };
    return new QHash<QString, PxImageFXs>(keywordMap(keywords));
}();
inline const QString &globalImageFXsDefaultKey = *new QString(QStringLiteral("none"));
inline constexpr PxImageFXs globalImageFXsDefaultValue = PxImageFXsNone;

} // namespace EnumHelper
