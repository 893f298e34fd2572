#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

/** The group under which the shop offers a product; a set of flags, 0 is unknown. */
enum PxProductGroupEnum : int {
    PxProductGroupUnknown = 0,
    PxProductGroupFoto = 1,
    PxProductGroupPremiumFoto = 2,
    PxProductGroupPoster = 4,
    PxProductGroupBook = 8,
    PxProductGroupCalendar = 16,
    PxProductGroupGift = 32,
    PxProductGroupDfmFoto = 128,
    PxProductGroupProfessionalFoto = 256,
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

inline QHash<QString, PxProductGroupEnum> initGlobalProductGroupEnumStringMap()
{
    return keywordMap(globalProductGroupEnumKeywords);
}

inline const QHash<QString, PxProductGroupEnum> &globalMapProductGroupEnumString =
    *new QHash<QString, PxProductGroupEnum>(initGlobalProductGroupEnumStringMap());
inline const QString &globalProductGroupEnumDefaultKey = *new QString(QStringLiteral("unknown"));
inline constexpr PxProductGroupEnum globalProductGroupEnumDefaultValue = PxProductGroupUnknown;

} // namespace EnumHelper
