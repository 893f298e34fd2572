#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

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

/** Spelled as in most files; if a value has several keywords, the usual one comes first. */
inline constexpr PxKeyword<PxPageNamingStyle> globalPageNamingStyleKeywords[] = {
    {"BOOK", PxPageNamingStyleBook},
    {"CALENDAR", PxPageNamingStyleCalendar},
    {"SINGLE_SIDED_CARD", PxPageNamingStyleSingleSidedCard},
    {"BOTH_SIDED_CARD", PxPageNamingStyleBothSidedCard},
    {"MEMORY", PxPageNamingStyleMemory},
    {"COLLEGE_BLOCK", PxPageNamingStyleCollegeBlock},
    {"PREMIUM-PILLOW", PxPageNamingStylePremiumPillow},
    {"COPYBOOK", PxPageNamingStyleCopyBook},
    {"STICKER", PxPageNamingStyleSticker},
    {"ADDRESSBOOK", PxPageNamingStyleAddressBook},
    {"CALENDAR_ANNUAL_DUPLEX", PxPageNamingStyleCalendarAnnualDuplex},
};

inline QHash<QString, PxPageNamingStyle> initGlobalPageNamingStyleStringMap()
{
    return keywordMap(globalPageNamingStyleKeywords);
}

inline const QHash<QString, PxPageNamingStyle> &globalMapPageNamingStyleString =
    *new QHash<QString, PxPageNamingStyle>(initGlobalPageNamingStyleStringMap());
inline const QString &globalPageNamingStyleDefaultKey = *new QString(QStringLiteral("UNKNOWN"));
inline constexpr PxPageNamingStyle globalPageNamingStyleDefaultValue = PxPageNamingStyleUnknown;

} // namespace EnumHelper
