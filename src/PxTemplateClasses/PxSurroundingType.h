#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

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

/** Spelled as in most files; if a value has several keywords, the usual one comes first. */
inline constexpr PxKeyword<PxSurroundingType> globalSurroundingTypeKeywords[] = {
    {"BOOK", PxSurroundingTypeBook},
    {"GIFT", PxSurroundingTypeGift},
    {"BORDER", PxSurroundingTypeBorder},
    {"CALENDAR", PxSurroundingTypeCalendar},
    {"FRAME", PxSurroundingTypeFrame},
    {"COLLEGEBLOCK", PxSurroundingTypeCollegeBlock},
    {"PHOTOPAPERBOOK", PxSurroundingTypePhotoPaperBook},
    {"COPYBOOK", PxSurroundingTypeCopyBook},
    {"NOTEBOOK", PxSurroundingTypeNoteBook},
};

inline QHash<QString, PxSurroundingType> initGlobalSurroundingTypeStringMap()
{
    return keywordMap(globalSurroundingTypeKeywords);
}

inline const QHash<QString, PxSurroundingType> &globalMapSurroundingTypeString =
    *new QHash<QString, PxSurroundingType>(initGlobalSurroundingTypeStringMap());
inline const QString &globalSurroundingTypeDefaultKey = *new QString(QStringLiteral("unknown"));
inline constexpr PxSurroundingType globalSurroundingTypeDefaultValue = PxSurroundingTypeNone;

} // namespace EnumHelper
