#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

/** Effects that are applied to every image of a product; a set of flags. */
enum PxImageFXs : int {
    PxImageFXsNone = 0,                 ///< pictures are shown as they are
    PxImageFXsGrayscale = 1,            ///< pictures are shown grey, without borders and shadows
    PxImageFXsPreserveAlphaChannel = 4, ///< transparency of pictures is kept
};

namespace EnumHelper {

/** As files usually spell them. */
inline constexpr PxKeyword<PxImageFXs> globalImageFXsKeywords[] = {
    {"none", PxImageFXsNone},
    {"grayscale", PxImageFXsGrayscale},
    {"PRESERVE_ALPHA_CHANNEL", PxImageFXsPreserveAlphaChannel},
};

/** The values by upper-cased keyword. */
inline const QHash<QString, PxImageFXs> &globalMapImageFXsString =
    *new QHash<QString, PxImageFXs>(keywordMap(globalImageFXsKeywords));
/** The text that is written for a value without a keyword. */
inline const QString &globalImageFXsDefaultKey = *new QString(QStringLiteral("none"));
/** What each word adds that is no keyword. */
inline constexpr PxImageFXs globalImageFXsDefaultValue = PxImageFXsNone;

} // namespace EnumHelper
