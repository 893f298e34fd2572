#pragma once

#include "check/catalogue/PxCheckPaths.h"
#include "check/findings/PxFindings.h"
#include "format/PxFormatRows.h"

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
    template <typename CheckFile>
    bool checkFiles(const QStringList &paths, PxFileKind kind, PxFindings *findings,
                    CheckFile checkFile);
    void checkProduct(const PxCheckedFile &file, bool isLegacy, PxDesignCheck *design,
                      PxCatalogueCheck *catalogue, PxFindings *findings) const;
    void addKnownThemes(PxThemeCheck *themes) const;
    void checkStrays(PxFindings *findings) const;

    PxCheckPaths m_paths;
    int m_fileCount = 0;
};
