#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

/** Who puts the printed parts together. */
enum PxAssemblyWay : int {
    PxAssemblyWayNone = 0,    ///< unknown
    PxAssemblyWayClient = 1,  ///< the customer
    PxAssemblyWayFactory = 2, ///< the maker
};

namespace EnumHelper {

/** Spelled as in most files; if a value has several keywords, the usual one comes first. */
inline constexpr PxKeyword<PxAssemblyWay> globalAssemblyWayKeywords[] = {
    {"client", PxAssemblyWayClient},
    {"factory", PxAssemblyWayFactory},
};

/** Makes the map below. */
inline QHash<QString, PxAssemblyWay> initGlobalAssemblyWayStringMap()
{
    return keywordMap(globalAssemblyWayKeywords);
}

/** The values by upper-cased keyword. */
inline const QHash<QString, PxAssemblyWay> &globalMapAssemblyWayString =
    *new QHash<QString, PxAssemblyWay>(initGlobalAssemblyWayStringMap());
/** The text that is written for a value without a keyword. */
inline const QString &globalAssemblyWayDefaultKey = *new QString(QStringLiteral("factory"));
/** What each word adds that is no keyword. */
inline constexpr PxAssemblyWay globalAssemblyWayDefaultValue = PxAssemblyWayFactory;

} // namespace EnumHelper
