#pragma once

#include "format/PxFormatRows.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

/** A directory with XML files that the library does not read. */
struct PxUnreadDirectory
{
    enum class Kind {
        Inside,   ///< lies in another that is read
        Misnamed, ///< has nearly the name of one that is read
        Hidden,   ///< of a resource directory behind the one that is read
    };
    Kind kind;
    QString path;
    int fileCount;
    /** The directory that is read, or would be if it was there; none for Inside. */
    QString read;
};

/** A file of a catalogue in a directory where the library does not look for it. */
struct PxMisplacedFile
{
    QString path;
    PxFileKind kind;
};

/** The files to check, as they are shown; each list is sorted. */
struct PxCheckPaths
{
    QString productTypes; ///< empty if it is not checked
    QString frames;       ///< the same
    QStringList products;
    QStringList legacyProducts;
    QStringList themes;
    QStringList userDefaults;
    /** Theme files that are not checked, but whose themes may be named by those that are. */
    QStringList knownThemes;
    /** Files in these directories that are not read. */
    QStringList strays;
    /** Links in these directories that lead nowhere, and end as the files that are read. */
    QStringList deadLinks;
    QVector<PxUnreadDirectory> unreadDirectories;
    QVector<PxMisplacedFile> misplacedFiles;
    /** Whether they exist or not. */
    QString productsDirectory;
    QString themesDirectory;
    QString userDefaultsDirectory;
    /** How many files of a directory cannot be opened, as their names cannot be decoded. */
    QMap<QString, int> undecodableNames;
    /** Whether these are all files of a catalogue, which are compared with each other then. */
    bool isCatalogue = false;
};
