#pragma once

#include "PxCoreExport.h"

#include <QDir>
#include <QHash>
#include <QString>
#include <QStringList>

/**
 * Where the process finds its files: resources, themes and user defaults.
 *
 * Applications and tools follow the same rule. Each of the three locations is set by itself: by its
 * setter; else by its environment variable `PX_RESOURCE_DIRS` (a list with QDir::listSeparator()),
 * `PX_THEMES_DIR` or `PX_USER_DEFAULTS_DIR`, which is read once when the instance is created; else,
 * if that is missing or empty, it has the default that is described at its query.
 *
 * Every answer is an absolute path and never empty. Queries may be called from any thread. The
 * setters are for the start of an application or a test: call them from one thread, before the
 * first query.
 */
class PXCORE_EXPORT PxDirectoryConfig
{
public:
    /** Created on first use, from any thread; never null, never destroyed. */
    static PxDirectoryConfig *instance();

    /**
     * The file or directory of this name in the first resource directory that has it.
     *
     * The default resource directory is the one installed with the library. If no directory has the
     * name, the answer is the path that it would have in the first directory, and `reportMissing`
     * logs a warning. An absolute name is returned unchanged.
     */
    QString resource(const QString &name, bool reportMissing) const;
    /**
     * The directory of the user-defaults files; by default `defaults` in the application's data
     * directory, whose path contains the name of the application.
     */
    QString userDefaultsPath() const;
    /**
     * The directory of the theme files.
     *
     * By default it is the folder `themes` of the first resource directory that has one, or else
     * its place in the first resource directory. A later change of the resource directories changes
     * it, too. With `reportMissing` a missing directory is logged as a warning.
     */
    QDir lumoThemesDirectory(bool reportMissing) const;

    /**
     * Sets the directories in the order in which they are searched. Empty entries are ignored;
     * without any other entry the default is used.
     */
    void setResourceDirectories(const QStringList &directories);
    /**
     * Sets the path of one resource, which then is not searched in the resource directories. For
     * tools whose users name single directories, such as "products". An empty path undoes that.
     */
    void setResource(const QString &name, const QString &path);
    /** An empty path restores the default. */
    void setUserDefaultsPath(const QString &path);
    /** An empty path restores the default. */
    void setThemesDirectory(const QString &path);

private:
    PxDirectoryConfig();
    ~PxDirectoryConfig() = default;
    Q_DISABLE_COPY(PxDirectoryConfig)

    QString defaultThemesDirectory() const;

    QStringList m_resourceDirectories;
    QHash<QString, QString> m_resources;
    // Empty if the default is used.
    QString m_userDefaultsPath;
    QString m_themesDirectory;
};
