#pragma once

#include "PxKeyword.h"

#include <QHash>
#include <QString>

/** Who puts the printed parts together. */
enum PxAssemblyWay : int {
    PxAssemblyWayNone = 0,
    PxAssemblyWayClient = 1,
    PxAssemblyWayFactory = 2,
};

namespace EnumHelper {

/** Spelled as in most files; if a value has several keywords, the usual one comes first. */
inline constexpr PxKeyword<PxAssemblyWay> globalAssemblyWayKeywords[] = {
    {"client", PxAssemblyWayClient},
    {"factory", PxAssemblyWayFactory},
};

inline QHash<QString, PxAssemblyWay> initGlobalAssemblyWayStringMap()
{
    return keywordMap(globalAssemblyWayKeywords);
}

inline const QHash<QString, PxAssemblyWay> &globalMapAssemblyWayString =
    *new QHash<QString, PxAssemblyWay>(initGlobalAssemblyWayStringMap());
inline const QString &globalAssemblyWayDefaultKey = *new QString(QStringLiteral("factory"));
inline constexpr PxAssemblyWay globalAssemblyWayDefaultValue = PxAssemblyWayFactory;

} // namespace EnumHelper
