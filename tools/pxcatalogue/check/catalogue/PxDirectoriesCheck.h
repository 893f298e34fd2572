#pragma once

#include "check/catalogue/PxCheckPaths.h"
#include "check/findings/PxReporter.h"

/** Checks the directories of a catalogue: that they have files, and which files are never read. */
class PxDirectoriesCheck
{
public:
    /** `namedTheme` is where a product names a theme; without a path if none does. */
    PxDirectoriesCheck(const PxCheckPaths &paths, const PxPlace &namedTheme,
                       const PxReporter &report)
        : m_paths(paths)
        , m_namedTheme(namedTheme)
        , m_report(report)
    {}

    void run() const;

private:
    void checkProducts() const;
    void checkThemes() const;
    void checkUndecodableNames() const;
    void checkDeadLinks() const;
    void checkStray(const QString &path) const;
    void checkUnread(const PxUnreadDirectory &directory) const;

    const PxCheckPaths &m_paths;
    const PxPlace m_namedTheme;
    const PxReporter m_report;
};
