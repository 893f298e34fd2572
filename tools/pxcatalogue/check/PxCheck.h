#pragma once

#include "check/PxCheckPaths.h"
#include "check/PxFindings.h"

class PxCatalogueCheck;
class PxCheckedFile;
class PxDesignCheck;
class PxThemeCheck;

/** Runs all checks over the files of a catalogue, one file after the other. */
class PxCheck
{
public:
    /** The library has been told its directories. */
    explicit PxCheck(const PxCheckPaths &paths) : m_paths(paths) {}

    void run(PxFindings *findings);
    int fileCount() const { return m_fileCount; }

private:
    void checkThemes(PxThemeCheck *check, PxFindings *findings);
    void checkProducts(const QStringList &paths, bool isLegacy, const PxDesignCheck &design,
                       PxCatalogueCheck *catalogue, PxFindings *findings);
    void checkUserDefaults(const PxDesignCheck &design, PxFindings *findings);
    QSet<QString> themeIds(const PxThemeCheck &checked) const;
    void checkStrays(PxFindings *findings) const;
    void checkReading(const PxCheckedFile &file, PxFindings *findings);

    PxCheckPaths m_paths;
    int m_fileCount = 0;
    bool m_isThemeMissing = false; ///< in a file that cannot be read
};
