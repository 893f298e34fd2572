#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

/** What the image around or over a page shows; a set of flags, 0 is no surrounding. */
enum PxSurroundingType : int {
    PxSurroundingTypeNone = 0,            ///< no surrounding
    PxSurroundingTypeBook = 1,            ///< covers and binding shade of books
    PxSurroundingTypeGift = 2,            ///< parts of a gift, such as a handle or a seam
    PxSurroundingTypeBorder = 4,          ///< a border, as where canvas folds
    PxSurroundingTypeCalendar = 8,        ///< the spiral of a calendar
    PxSurroundingTypeFrame = 16,          ///< a frame around every page
    PxSurroundingTypeCollegeBlock = 32,   ///< the spiral of a block
    PxSurroundingTypePhotoPaperBook = 64, ///< covers and fold of photo-paper books
    PxSurroundingTypeCopyBook = 128,      ///< an exercise book
    PxSurroundingTypeNoteBook = 256,      ///< a notebook
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

/** Makes the map below. */
inline QHash<QString, PxSurroundingType> initGlobalSurroundingTypeStringMap()
{
    return keywordMap(globalSurroundingTypeKeywords);
}

/** The values by upper-cased keyword. */
inline const QHash<QString, PxSurroundingType> &globalMapSurroundingTypeString =
    *new QHash<QString, PxSurroundingType>(initGlobalSurroundingTypeStringMap());
/** The text that is written for a value without a keyword. */
inline const QString &globalSurroundingTypeDefaultKey = *new QString(QStringLiteral("unknown"));
/** The type of a word that is no keyword. */
inline constexpr PxSurroundingType globalSurroundingTypeDefaultValue = PxSurroundingTypeNone;

} // namespace EnumHelper
