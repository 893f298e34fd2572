#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/** The files to check, as they are shown; each list is sorted. */
struct PxCheckPaths
{
    QString productTypes; ///< empty when it is not checked, and so below
    QString frames;
    QStringList products;
    QStringList legacyProducts;
    QStringList themes;
    QStringList userDefaults;
    /** Theme files that are not checked, but whose themes may be named by those that are. */
    QStringList knownThemes;
    /** Files in these directories that are not read. */
    QStringList strays;
    /** Directories with files that no path leads to, and how many. */
    QMap<QString, int> undecodableNames;
    /** The whole catalogue, so that one file can be held against the others. */
    bool isCatalogue = false;
};
