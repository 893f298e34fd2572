#pragma once

#include "check/catalogue/PxCheckPaths.h"
#include "writing/PxProblem.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <optional>

class PxCommandLine;

/** Finds the files that are to be checked, in the directories that the library reads. */
class PxCheckFiles
{
public:
    explicit PxCheckFiles(const PxCommandLine &line);

    /** A problem is one of the paths. */
    std::optional<PxProblem> find();

    PxCheckPaths paths() const { return m_paths; }
    /** What the files are called in the catalogue, by their path. */
    QHash<QString, QString> catalogueNames() const { return m_catalogueNames; }

private:
    struct Directory
    {
        QString path;
        QString name;               ///< in a catalogue
        Qt::CaseSensitivity ending; ///< as the library finds files there
        QStringList *files;         ///< takes those that it reads
    };

    std::optional<PxProblem> findCatalogue();
    std::optional<PxProblem> findSingleFiles();
    std::optional<PxProblem> findKnownThemes(const QSet<QString> &checked);
    bool addSingleFile(const QString &path);
    QVector<Directory> directories();
    Directory themes(QStringList *files);
    std::optional<PxProblem> findFiles(const Directory &directory);
    QString shown(const QString &absolutePath) const;

    const QStringList m_given;         // paths
    QHash<QString, QString> m_shownOf; // directories as they were given, by absolute path
    PxCheckPaths m_paths;
    QHash<QString, QString> m_catalogueNames;
};
