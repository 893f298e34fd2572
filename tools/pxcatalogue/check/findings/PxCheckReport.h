#pragma once

#include "check/findings/PxFinding.h"

#include <QHash>
#include <QMap>
#include <QVector>

/** What a check has found, as any format prints it. */
struct PxCheckReport
{
    QVector<PxFinding> findings; ///< sorted
    /** By tag, what the check lacked, such as "without the whole catalogue". */
    QMap<QString, QString> tagsNotChecked;
    int fileCount = 0;
    int knownCount = 0; ///< findings that the baseline hides
    /** By path, the names of files relative to the catalogue, which do not change if it moves. */
    QHash<QString, QString> catalogueNames;

    int count(PxSeverity severity) const
    {
        int found = 0;
        for (const PxFinding &finding : findings)
            found += finding.severity == severity ? finding.count() : 0;
        return found;
    }
    bool hasAtLeast(PxSeverity severity) const
    {
        for (const PxFinding &finding : findings) {
            if (finding.severity >= severity)
                return true;
        }
        return false;
    }
};
