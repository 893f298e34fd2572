#include "check/findings/PxFinding.h"

void PxFinding::setRest(int count)
{
    restCount = count;
    message = QString("and %1 more in this file").arg(count);
}

QString PxFinding::text() const
{
    QString text = message;
    return text.replace(relatedMark, related.seenFrom(place.path));
}
