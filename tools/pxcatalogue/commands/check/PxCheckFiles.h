#pragma once

#include "check/catalogue/PxCheckPaths.h"
#include "check/findings/PxCheckReport.h"
#include "writing/PxProblem.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <optional>

class PxCommandLine;

/** Finds the files to check, in the directories that the library reads. */
class PxCheckFiles
{
public:
    explicit PxCheckFiles(const PxCommandLine &line);

    /** Returns what is wrong with the paths. */
    std::optional<PxProblem> find();

    PxCheckPaths paths() const { return m_paths; }
    /** Where the catalogue is; unset if single files are checked. */
    std::optional<PxCheckedCatalogue> catalogue() const;
    /** By path: the name of each file relative to the catalogue. */
    QHash<QString, QString> catalogueNames() const { return m_catalogueNames; }

private:
    struct Directory
    {
        QString path;
        QString name;               ///< relative to the catalogue
        Qt::CaseSensitivity ending; ///< how the library compares the ending of files
        QStringList *files;         ///< the list for the files that the library reads
    };

    std::optional<PxProblem> findCatalogue();
    std::optional<PxProblem> findSingleFiles();
    std::optional<PxProblem> findKnownThemes(const QSet<QString> &checked);
    bool addSingleFile(const QString &path);
    QVector<Directory> directories();
    Directory themes(QStringList *files);
    std::optional<PxProblem> findFiles(const Directory &directory);
    void findUnread();
    QString shown(const QString &absolutePath) const;

    const QStringList m_given;         // the paths to check
    const QString m_origin;            // what named the catalogue unless they do
    QStringList m_resources;           // without paths to check: the resource directories
    QHash<QString, QString> m_shownOf; // by absolute path: directories as the user wrote them
    PxCheckPaths m_paths;
    QHash<QString, QString> m_catalogueNames;
};
