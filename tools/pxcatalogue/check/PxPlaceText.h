#pragma once

#include "check/PxPlace.h"

/** Another place, as it is told in the message for a place in the file `path`. */
inline QString pxPlaceText(const PxPlace &other, const QString &path)
{
    return other.path == path ? QStringLiteral("line %1").arg(other.line)
                              : QStringLiteral("%1:%2").arg(other.path).arg(other.line);
}
