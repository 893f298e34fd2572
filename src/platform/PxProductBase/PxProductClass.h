#pragma once

/** The broad kind of a product; a set of flags, 0 is unknown. */
enum PxProductClass : int {
    PxProductClassUnknown = 0,     ///< no class
    PxProductClassBook = 1,        ///< photo books
    PxProductClassCalendar = 2,    ///< calendars
    PxProductClassGift = 4,        ///< gifts
    PxProductClassCard = 8,        ///< cards
    PxProductClassDecoration = 16, ///< wall decorations
    PxProductClassPrint = 32,      ///< prints of photos
};
