#pragma once

#include "PxKeyword.h"

/** Who puts the printed parts together. */
enum PxAssemblyWay : int {
    PxAssemblyWayNone = 0,
    PxAssemblyWayClient = 1,
    PxAssemblyWayFactory = 2,
};

namespace EnumHelper {

inline QHash<QString, PxAssemblyWay> initGlobalAssemblyWayStringMap()
{
    constexpr PxKeyword<PxAssemblyWay> keywords[] = {
        {"client", PxAssemblyWayClient},
        {"factory", PxAssemblyWayFactory},
    };
    return keywordMap(keywords);
}

inline const QHash<QString, PxAssemblyWay> &globalMapAssemblyWayString =
    *new QHash<QString, PxAssemblyWay>(initGlobalAssemblyWayStringMap());
inline const QString &globalAssemblyWayDefaultKey = *new QString(QStringLiteral("factory"));
inline constexpr PxAssemblyWay globalAssemblyWayDefaultValue = PxAssemblyWayFactory;

} // namespace EnumHelper
