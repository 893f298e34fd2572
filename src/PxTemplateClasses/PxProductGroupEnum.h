#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

/** The group under which the shop offers a product; a set of flags, 0 is unknown. */
enum PxProductGroupEnum : int {
    PxProductGroupUnknown = 0,            ///< no group
    PxProductGroupFoto = 1,               ///< prints
    PxProductGroupPremiumFoto = 2,        ///< premium prints
    PxProductGroupPoster = 4,             ///< posters
    PxProductGroupBook = 8,               ///< books
    PxProductGroupCalendar = 16,          ///< calendars
    PxProductGroupGift = 32,              ///< gifts
    PxProductGroupDfmFoto = 128,          ///< prints of the kind "dfm"
    PxProductGroupProfessionalFoto = 256, ///< professional prints
};

namespace EnumHelper {

/** Spelled as in most files; if a value has several keywords, the usual one comes first. */
inline constexpr PxKeyword<PxProductGroupEnum> globalProductGroupEnumKeywords[] = {
    {"foto", PxProductGroupFoto},
    {"premiumfoto", PxProductGroupPremiumFoto},
    {"product_foto", PxProductGroupPremiumFoto},
    {"poster", PxProductGroupPoster},
    {"product_poster", PxProductGroupPoster},
    {"book", PxProductGroupBook},
    {"product_fotobook", PxProductGroupBook},
    {"calendar", PxProductGroupCalendar},
    {"printfun", PxProductGroupCalendar},
    {"product_calendar", PxProductGroupCalendar},
    {"gift", PxProductGroupGift},
    {"fun", PxProductGroupGift},
    {"product_gift", PxProductGroupGift},
    {"dfmfoto", PxProductGroupDfmFoto},
    {"professionalfoto", PxProductGroupProfessionalFoto},
};

/** Makes the map below. */
inline QHash<QString, PxProductGroupEnum> initGlobalProductGroupEnumStringMap()
{
    return keywordMap(globalProductGroupEnumKeywords);
}

/** The values by upper-cased keyword. */
inline const QHash<QString, PxProductGroupEnum> &globalMapProductGroupEnumString =
    *new QHash<QString, PxProductGroupEnum>(initGlobalProductGroupEnumStringMap());
/** The text that is written for a value without a keyword. */
inline const QString &globalProductGroupEnumDefaultKey = *new QString(QStringLiteral("unknown"));
/** The group of a word that is no keyword. */
inline constexpr PxProductGroupEnum globalProductGroupEnumDefaultValue = PxProductGroupUnknown;

} // namespace EnumHelper
