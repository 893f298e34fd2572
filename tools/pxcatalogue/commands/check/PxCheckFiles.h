#pragma once

#include "check/catalogue/PxCheckPaths.h"

#include <QHash>
#include <QVector>

class PxCommandLine;

/** Finds the files that are to be checked, in the directories that the library has been told. */
class PxCheckFiles
{
public:
    explicit PxCheckFiles(const PxCommandLine &commandLine);

    /** Answers what is wrong with the paths, in one line; empty for nothing. */
    QString find();

    PxCheckPaths paths() const { return m_paths; }
    /** What the files are called in the catalogue, by their path. */
    QHash<QString, QString> catalogueNames() const { return m_catalogueNames; }

private:
    struct Directory
    {
        QString path;
        QString name;               ///< in a catalogue
        Qt::CaseSensitivity ending; ///< as the library finds files there
        QStringList *files;         ///< those that it reads
    };

    QString findCatalogue();
    QString findSingleFiles(const QStringList &paths);
    void addSingleFile(const QString &path);
    QVector<Directory> directories();
    Directory themes(QStringList *files);
    QString findFiles(const Directory &directory);
    QString shown(const QString &absolutePath) const;

    const PxCommandLine &m_commandLine;
    QHash<QString, QString> m_shownOf; // directories as they were given, by absolute path
    PxCheckPaths m_paths;
    QHash<QString, QString> m_catalogueNames;
};
