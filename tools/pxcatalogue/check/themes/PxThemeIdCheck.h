#pragma once

#include "check/findings/PxReporter.h"

#include <QMap>
#include <QSet>
#include <QStringList>

/** Checks the ids of all themes: none occurs twice, and one is that of the default theme. */
class PxThemeIdCheck
{
public:
    explicit PxThemeIdCheck(const PxReporter &report) : m_report(report) {}

    /** Adds a file that is not itself checked; all such files come first. */
    void addKnownFile(const PxCheckedFile &file);
    void addFile(const PxCheckedFile &file);

    /** After all files have been added. */
    void run();

    /**
     * The ids that product files may name, in lower case and sorted. Empty if a theme of the themes
     * directory could not be read: any name may be its id.
     */
    QStringList ids() const;

private:
    void addId(const PxCheckedFile &file, const PxSourceElement &theme);
    void reportTwice(const QString &id, const PxPlace &first, const PxPlace &second) const;
    bool isReadBeside(const PxPlace &known, const PxCheckedFile &file) const;
    bool isComplete() const;

    const PxReporter m_report;
    QSet<QString> m_files;           ///< canonical paths of those that the library reads
    QSet<QString> m_knownFiles;      ///< as they are shown: those that are not checked
    QMap<QString, PxPlace> m_themes; ///< where an id is first, by id
    PxPlace m_firstRoot;
    bool m_hasUnnamed = false;
};
