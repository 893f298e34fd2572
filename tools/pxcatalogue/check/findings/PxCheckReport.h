#pragma once

#include "check/findings/PxFinding.h"
#include "check/findings/PxFindingIdentity.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QVector>

#include <optional>

/** A catalogue that was checked as a whole. */
struct PxCheckedCatalogue
{
    QString path; ///< of the first resource directory
    QString from; ///< what named it unless the user did, such as PX_RESOURCE_DIRS
    int productCount = 0;
    int legacyProductCount = 0;
    int themeCount = 0;
};

/** What a check has found, as any format prints it. */
struct PxCheckReport
{
    QVector<PxFinding> findings; ///< sorted
    /** By tag, what the check lacked, such as "without the whole catalogue". */
    QMap<QString, QString> tagsNotChecked;
    int fileCount = 0;
    int knownCount = 0;                ///< findings that the baseline hides
    QMap<PxFindingIdentity, int> gone; ///< those that the baseline lists, but that are not there
    QSet<QString> tagsChecked;         ///< those whose findings are not left out
    std::optional<PxCheckedCatalogue> catalogue; ///< unset if single files were checked
    /** By path, the names of files relative to the catalogue, which do not change if it moves. */
    QHash<QString, QString> catalogueNames;

    int count(PxSeverity severity) const
    {
        int found = 0;
        for (const PxFinding &finding : findings)
            found += finding.severity == severity ? finding.count() : 0;
        return found;
    }
    /** Keeps the first of the findings with one cause, which counts the others. */
    void joinCauses();
    bool hasAtLeast(PxSeverity severity) const
    {
        for (const PxFinding &finding : findings) {
            if (finding.severity >= severity)
                return true;
        }
        return false;
    }
};
