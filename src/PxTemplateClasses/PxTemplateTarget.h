#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

/** The kind of product that a template is made for; a set of flags, 0 is unknown. */
enum PxTemplateTarget : int {
    PxTemplateTargetUnknown = 0,    ///< no kind of product
    PxTemplateTargetFotoBook = 4,   ///< photo books
    PxTemplateTargetGift = 8,       ///< gifts, cards, decorations and frames
    PxTemplateTargetInvisible = 32, ///< templates that are not offered to users
    PxTemplateTargetCalendar = 256, ///< calendars
};

namespace EnumHelper {

/** Makes the map below. */
inline QHash<QString, PxTemplateTarget> initGlobalTemplateTargetStringMap()
{
    constexpr PxKeyword<PxTemplateTarget> keywords[] = {
        {"fotobook", PxTemplateTargetFotoBook},   {"calendar", PxTemplateTargetCalendar},
        {"gift", PxTemplateTargetGift},           {"frame", PxTemplateTargetGift},
        {"invisible", PxTemplateTargetInvisible},
    };
    return keywordMap(keywords);
}

/** The values by upper-cased keyword. */
inline const QHash<QString, PxTemplateTarget> &globalMapTemplateTargetString =
    *new QHash<QString, PxTemplateTarget>(initGlobalTemplateTargetStringMap());
/** The text that is written for a value without a keyword. */
inline const QString &globalTemplateTargetDefaultKey = *new QString(QStringLiteral("unknown"));
/** What each word adds that is no keyword. */
inline constexpr PxTemplateTarget globalTemplateTargetDefaultValue = PxTemplateTargetUnknown;

} // namespace EnumHelper
