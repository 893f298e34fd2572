#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

/** The kind of product that a template is made for; a set of flags, 0 is unknown. */
enum PxTemplateTarget : int {
    PxTemplateTargetUnknown = 0,
    PxTemplateTargetFotoBook = 4,
    PxTemplateTargetGift = 8,
    PxTemplateTargetInvisible = 32,
    PxTemplateTargetCalendar = 256,
};

namespace EnumHelper {

inline QHash<QString, PxTemplateTarget> initGlobalTemplateTargetStringMap()
{
    constexpr PxKeyword<PxTemplateTarget> keywords[] = {
        {"fotobook", PxTemplateTargetFotoBook},   {"calendar", PxTemplateTargetCalendar},
        {"gift", PxTemplateTargetGift},           {"frame", PxTemplateTargetGift},
        {"invisible", PxTemplateTargetInvisible},
    };
    return keywordMap(keywords);
}

inline const QHash<QString, PxTemplateTarget> &globalMapTemplateTargetString =
    *new QHash<QString, PxTemplateTarget>(initGlobalTemplateTargetStringMap());
inline const QString &globalTemplateTargetDefaultKey = *new QString(QStringLiteral("unknown"));
inline constexpr PxTemplateTarget globalTemplateTargetDefaultValue = PxTemplateTargetUnknown;

} // namespace EnumHelper
