#pragma once

#include "PxKeyword.h"

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

inline QHash<QString, PxProductGroupEnum> initGlobalProductGroupEnumStringMap()
{
    constexpr PxKeyword<PxProductGroupEnum> keywords[] = {
        {"premiumfoto", PxProductGroupPremiumFoto},
        {"product_foto", PxProductGroupPremiumFoto},
        {"foto", PxProductGroupFoto},
        {"poster", PxProductGroupPoster},
        {"product_poster", PxProductGroupPoster},
        {"book", PxProductGroupBook},
        {"product_fotobook", PxProductGroupBook},
        {"printfun", PxProductGroupCalendar},
        {"calendar", PxProductGroupCalendar},
        {"product_calendar", PxProductGroupCalendar},
        {"fun", PxProductGroupGift},
        {"gift", PxProductGroupGift},
        {"product_gift", PxProductGroupGift},
        {"dfmfoto", PxProductGroupDfmFoto},
        {"professionalfoto", PxProductGroupProfessionalFoto},
    };
    return keywordMap(keywords);
}

inline const QHash<QString, PxProductGroupEnum> &globalMapProductGroupEnumString =
    *new QHash<QString, PxProductGroupEnum>(initGlobalProductGroupEnumStringMap());
inline const QString &globalProductGroupEnumDefaultKey = *new QString(QStringLiteral("unknown"));
inline constexpr PxProductGroupEnum globalProductGroupEnumDefaultValue = PxProductGroupUnknown;

} // namespace EnumHelper
