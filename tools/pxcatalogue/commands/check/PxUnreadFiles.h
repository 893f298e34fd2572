#pragma once

#include "check/catalogue/PxCheckPaths.h"

#include <QHash>

class QFileInfo;

/** Finds what lies in a resource directory although the library looks for it elsewhere. */
class PxUnreadFiles
{
public:
    /** `read` are the directories that the library reads. Paths and names must outlive this. */
    PxUnreadFiles(const QStringList &read, PxCheckPaths &paths, QHash<QString, QString> &names);

    /**
     * Finds the files of a catalogue directly in the resource directory, and the directories there
     * that have some and are nearly named like one that is read.
     */
    void findBeside(const QString &resources);
    /** Finds the directories with XML files in one that is read, and is called `name`. */
    void findInside(const QString &directory, const QString &name);
    /** Finds the same directory of resource directories that are not used for it. */
    void findHidden(const QStringList &resources, const QString &name, const QString &read);

private:
    bool isRead(const QFileInfo &directory) const;
    void findMisnamed(const QFileInfo &directory);
    void add(PxUnreadDirectory::Kind kind, const QString &path, const QString &name,
             const QString &read);

    QStringList m_read; // canonical, each with a slash behind it
    PxCheckPaths &m_paths;
    QHash<QString, QString> &m_names; // by path: relative to the catalogue
    int m_headCount = 0;
};
