#pragma once

#include "check/findings/PxCheckTag.h"

#include <QString>
#include <QStringList>
#include <QVector>

/** All kinds of findings, by name. */
class PxCheckTags
{
public:
    static const QVector<const PxCheckTag *> &all();
    static QStringList names();
    static const PxCheckTag &of(PxTag tag);
    /** Null if there is no such tag. */
    static const PxCheckTag *find(const QString &name);

    /** All severities, the worst first. */
    static QVector<PxSeverity> severities();
    static const char *severityName(PxSeverity severity);
};
