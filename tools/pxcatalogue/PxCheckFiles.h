#pragma once

#include "check/PxCheckPaths.h"

#include <QHash>

class PxCatalogueCommandLine;

/** Finds the files that are to be checked, in the directories that the library has been told. */
class PxCheckFiles
{
public:
    explicit PxCheckFiles(const PxCatalogueCommandLine &commandLine);

    /** Answers what is wrong with the paths, in one line; empty for nothing. */
    QString find();

    PxCheckPaths paths() const { return m_paths; }
    /** What the files are called in the catalogue, by their path. */
    QHash<QString, QString> catalogueNames() const { return m_catalogueNames; }

private:
    QString findCatalogue();
    QString findSingleFiles(const QStringList &paths);
    void addSingleFile(const QString &path);
    QString findDirectory(const QString &directory, const QString &name, Qt::CaseSensitivity ending,
                          QStringList *files);
    QString shown(const QString &absolutePath) const;
    QString themesDirectory() const;

    const PxCatalogueCommandLine &m_commandLine;
    QHash<QString, QString> m_shownOf; // directories as they were given, by absolute path
    PxCheckPaths m_paths;
    QHash<QString, QString> m_catalogueNames;
};
