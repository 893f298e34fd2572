#pragma once

/** The finish of photo paper; one of them, not a set. */
enum PxFotoPaperType : int {
    PxFotoPaperTypeUnknown = 0,
    PxFotoPaperTypeGlossy = 1,
    PxFotoPaperTypeMatt = 2,
    PxFotoPaperTypeSilkGrain = 3,
};
