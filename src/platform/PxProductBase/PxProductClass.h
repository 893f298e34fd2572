#pragma once

/** The broad kind of a product; a set of flags, 0 is unknown. */
enum PxProductClass : int {
    PxProductClassUnknown = 0,
    PxProductClassBook = 1,
    PxProductClassCalendar = 2,
    PxProductClassGift = 4,
    PxProductClassCard = 8,
    PxProductClassDecoration = 16,
    PxProductClassPrint = 32,
};
