#pragma once

#include "PxKeyword.h"

/** What the image around or over a page shows; a set of flags, 0 is no surrounding. */
enum PxSurroundingType : int {
    PxSurroundingTypeNone = 0,
    PxSurroundingTypeBook = 1,
    PxSurroundingTypeGift = 2,
    PxSurroundingTypeBorder = 4,
    PxSurroundingTypeCalendar = 8,
    PxSurroundingTypeFrame = 16,
    PxSurroundingTypeCollegeBlock = 32,
    PxSurroundingTypePhotoPaperBook = 64,
    PxSurroundingTypeCopyBook = 128,
    PxSurroundingTypeNoteBook = 256,
};

namespace EnumHelper {

inline QHash<QString, PxSurroundingType> initGlobalSurroundingTypeStringMap()
{
    constexpr PxKeyword<PxSurroundingType> keywords[] = {
        {"book", PxSurroundingTypeBook},
        {"photopaperbook", PxSurroundingTypePhotoPaperBook},
        {"gift", PxSurroundingTypeGift},
        {"border", PxSurroundingTypeBorder},
        {"calendar", PxSurroundingTypeCalendar},
        {"frame", PxSurroundingTypeFrame},
        {"collegeblock", PxSurroundingTypeCollegeBlock},
        {"copybook", PxSurroundingTypeCopyBook},
        {"notebook", PxSurroundingTypeNoteBook},
    };
    return keywordMap(keywords);
}

inline const QHash<QString, PxSurroundingType> &globalMapSurroundingTypeString =
    *new QHash<QString, PxSurroundingType>(initGlobalSurroundingTypeStringMap());
inline const QString &globalSurroundingTypeDefaultKey = *new QString(QStringLiteral("unknown"));
inline constexpr PxSurroundingType globalSurroundingTypeDefaultValue = PxSurroundingTypeNone;

} // namespace EnumHelper
