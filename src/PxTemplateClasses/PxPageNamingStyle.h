#pragma once

#include "PxKeyword.h"

/** How the editor names the pages of a product; a set of flags, 0 is unknown. */
enum PxPageNamingStyle : int {
    PxPageNamingStyleUnknown = 0,
    PxPageNamingStyleBook = 1,
    PxPageNamingStyleCalendar = 2,
    PxPageNamingStyleSingleSidedCard = 4,
    PxPageNamingStyleBothSidedCard = 8,
    PxPageNamingStyleMemory = 16,
    PxPageNamingStyleCollegeBlock = 32,
    PxPageNamingStylePremiumPillow = 64,
    PxPageNamingStyleCopyBook = 128,
    PxPageNamingStyleSticker = 256,
    PxPageNamingStyleAddressBook = 512,
    PxPageNamingStyleCalendarAnnualDuplex = 1024,
};

namespace EnumHelper {

inline QHash<QString, PxPageNamingStyle> initGlobalPageNamingStyleStringMap()
{
    constexpr PxKeyword<PxPageNamingStyle> keywords[] = {
        {"book", PxPageNamingStyleBook},
        {"calendar", PxPageNamingStyleCalendar},
        {"single_sided_card", PxPageNamingStyleSingleSidedCard},
        {"both_sided_card", PxPageNamingStyleBothSidedCard},
        {"memory", PxPageNamingStyleMemory},
        {"college_block", PxPageNamingStyleCollegeBlock},
        {"copybook", PxPageNamingStyleCopyBook},
        {"sticker", PxPageNamingStyleSticker},
        {"addressbook", PxPageNamingStyleAddressBook},
        {"premium-pillow", PxPageNamingStylePremiumPillow},
        {"calendar_annual_duplex", PxPageNamingStyleCalendarAnnualDuplex},
    };
    return keywordMap(keywords);
}

inline const QHash<QString, PxPageNamingStyle> &globalMapPageNamingStyleString =
    *new QHash<QString, PxPageNamingStyle>(initGlobalPageNamingStyleStringMap());
inline const QString &globalPageNamingStyleDefaultKey = *new QString(QStringLiteral("UNKNOWN"));
inline constexpr PxPageNamingStyle globalPageNamingStyleDefaultValue = PxPageNamingStyleUnknown;

} // namespace EnumHelper
