#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

/** How the editor names the pages of a product; a set of flags, 0 is unknown. */
enum PxPageNamingStyle : int {
    PxPageNamingStyleUnknown = 0,                 ///< the file states none
    PxPageNamingStyleBook = 1,                    ///< as in a photo book
    PxPageNamingStyleCalendar = 2,                ///< as in a calendar
    PxPageNamingStyleSingleSidedCard = 4,         ///< as on a card printed on one side
    PxPageNamingStyleBothSidedCard = 8,           ///< as on a card printed on both sides
    PxPageNamingStyleMemory = 16,                 ///< as on the cards of a memory game
    PxPageNamingStyleCollegeBlock = 32,           ///< as in a college block
    PxPageNamingStylePremiumPillow = 64,          ///< as on a pillow
    PxPageNamingStyleCopyBook = 128,              ///< as in an exercise book
    PxPageNamingStyleSticker = 256,               ///< as on a sheet of stickers
    PxPageNamingStyleAddressBook = 512,           ///< as in an address book
    PxPageNamingStyleCalendarAnnualDuplex = 1024, ///< as in a year calendar of two pages
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

/** Makes the map below. */
inline QHash<QString, PxPageNamingStyle> initGlobalPageNamingStyleStringMap()
{
    return keywordMap(globalPageNamingStyleKeywords);
}

/** The values by upper-cased keyword. */
inline const QHash<QString, PxPageNamingStyle> &globalMapPageNamingStyleString =
    *new QHash<QString, PxPageNamingStyle>(initGlobalPageNamingStyleStringMap());
/** The text that is written for a value without a keyword. */
inline const QString &globalPageNamingStyleDefaultKey = *new QString(QStringLiteral("UNKNOWN"));
/** What each word adds that is no keyword. */
inline constexpr PxPageNamingStyle globalPageNamingStyleDefaultValue = PxPageNamingStyleUnknown;

} // namespace EnumHelper
