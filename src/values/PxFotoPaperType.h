#pragma once

/** The finish of photo paper: a single value, not a set of flags. */
enum PxFotoPaperType : int {
    PxFotoPaperTypeUnknown = 0,
    PxFotoPaperTypeGlossy = 1,
    PxFotoPaperTypeMatt = 2,
    PxFotoPaperTypeSilkGrain = 3,
};
