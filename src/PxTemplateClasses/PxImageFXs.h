#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

/** Effects that are applied to every image of a product; a set of flags. */
enum PxImageFXs : int {
    PxImageFXsNone = 0,
    PxImageFXsGrayscale = 1,
    PxImageFXsPreserveAlphaChannel = 4,
};

namespace EnumHelper {

/** As files usually spell them. */
inline constexpr PxKeyword<PxImageFXs> globalImageFXsKeywords[] = {
    {"none", PxImageFXsNone},
    {"grayscale", PxImageFXsGrayscale},
    {"PRESERVE_ALPHA_CHANNEL", PxImageFXsPreserveAlphaChannel},
};

inline const QHash<QString, PxImageFXs> &globalMapImageFXsString =
    *new QHash<QString, PxImageFXs>(keywordMap(globalImageFXsKeywords));
inline const QString &globalImageFXsDefaultKey = *new QString(QStringLiteral("none"));
inline constexpr PxImageFXs globalImageFXsDefaultValue = PxImageFXsNone;

} // namespace EnumHelper
