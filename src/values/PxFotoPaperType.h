#pragma once

/** The finish of photo paper: a single value, not a set of flags. */
enum PxFotoPaperType : int {
    PxFotoPaperTypeUnknown = 0,   ///< not chosen yet
    PxFotoPaperTypeGlossy = 1,    ///< glossy
    PxFotoPaperTypeMatt = 2,      ///< matt
    PxFotoPaperTypeSilkGrain = 3, ///< silk grain
};
