#pragma once

#include "check/source/PxCheckedFile.h"

#include <QMap>
#include <QSet>

/** Checks theme files, each and all together. */
class PxThemeCheck
{
public:
    /** Files that are not checked come first; their themes may meet those of others. */
    void addKnownFile(const PxCheckedFile &file);
    void checkFile(const PxCheckedFile &file, PxFindings *findings);
    /** When all files have been checked. */
    void finish(PxFindings *findings) const;

    /**
     * What product files may name, in lower case and sorted. Empty when not every theme of the
     * themes directory could be checked: then nothing can be said about a name.
     */
    QStringList ids() const;

private:
    void checkStrayNodes(const PxCheckedFile &file, PxFindings *findings) const;
    void checkIdOnce(const PxCheckedFile &file, const PxSourceElement &theme, PxFindings *findings);
    bool isReadBeside(const PxPlace &known, const PxCheckedFile &file) const;
    bool isComplete() const;

    QSet<QString> m_files;           ///< canonical paths of those that the library reads
    QSet<QString> m_knownFiles;      ///< as they are shown: those that are not checked
    QMap<QString, PxPlace> m_themes; ///< where an id is first, by id
    PxPlace m_firstRoot;
    bool m_hasUnnamed = false;
};
