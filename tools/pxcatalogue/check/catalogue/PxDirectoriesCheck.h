#pragma once

#include "check/catalogue/PxCheckPaths.h"
#include "check/findings/PxReporter.h"

#include <QSet>

/** Checks the directories of a catalogue: that they have files, and which files are never read. */
class PxDirectoriesCheck
{
public:
    /** What the files that are read say. */
    struct Contents
    {
        QSet<QString> productNames; ///< with their case folded
        QStringList themeIds;       ///< sorted; empty if not all are known
        PxPlace namedTheme;         ///< where a product names a theme; without a path if none does
    };

    PxDirectoriesCheck(const PxCheckPaths &paths, const Contents &contents,
                       const PxReporter &report)
        : m_paths(paths)
        , m_contents(contents)
        , m_report(report)
    {}

    void run() const;

private:
    void checkProducts() const;
    void checkThemes() const;
    void checkUndecodableNames() const;
    void checkDeadLinks() const;
    void checkStray(const QString &path) const;
    void checkProductTypes() const;
    void checkUnread(const PxUnreadDirectory &directory) const;
    void checkInside(const PxUnreadDirectory &directory) const;
    void checkMisnamed(const PxUnreadDirectory &directory) const;
    void checkHidden(const PxUnreadDirectory &directory) const;
    void checkMisplaced(const PxMisplacedFile &file) const;
    bool isLost(const QString &path, PxFileKind kind) const;
    QString hintFor(const QString &directory) const;

    const PxCheckPaths &m_paths;
    const Contents m_contents;
    const PxReporter m_report;
};
