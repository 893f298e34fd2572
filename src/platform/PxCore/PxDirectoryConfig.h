#pragma once

#include "PxCoreExport.h"

#include <QDir>
#include <QHash>
#include <QString>
#include <QStringList>

/**
 * Where the files of the process are: resources, themes and user defaults.
 *
 * One rule for applications and tools, for each of the three by itself: what its setter was given,
 * else its environment variable, read once when the instance is created: `PX_RESOURCE_DIRS` (a list
 * with QDir::listSeparator()), `PX_THEMES_DIR` or `PX_USER_DEFAULTS_DIR`; else, if that is missing
 * or empty, the default named at the query.
 *
 * Every answer is an absolute path and never empty. Queries may come from any thread; the setters
 * are for the start of an application or a test: on one thread, before the first query.
 */
class PXCORE_EXPORT PxDirectoryConfig
{
public:
    static PxDirectoryConfig *instance();

    /**
     * The file or directory of this name in the first resource directory that has it.
     *
     * The default resource directory is the one installed with the library. When no directory has
     * the name, the answer is the path it would have in the first one; with `reportMissing` that is
     * logged as a warning. An absolute name is answered as it is.
     */
    QString resource(const QString &name, bool reportMissing) const;
    /**
     * The directory of the user-defaults files; by default `defaults` in the application's data
     * directory, which follows the name of the application.
     */
    QString userDefaultsPath() const;
    /**
     * The directory of the theme files; by default the folder `themes` of the first resource
     * directory that has one, also of those that are set later, or where it would be in the first.
     * With `reportMissing` it is a warning when there is none.
     */
    QDir lumoThemesDirectory(bool reportMissing) const;

    /** In the order they are searched. Empty entries count for nothing, no entry for the default.
     */
    void setResourceDirectories(const QStringList &directories);
    /**
     * Answers this one resource name with this path, before any resource directory is asked, for
     * tools whose user names single directories ("products"). An empty path takes that back.
     */
    void setResource(const QString &name, const QString &path);
    /** An empty path brings the default back. */
    void setUserDefaultsPath(const QString &path);
    /** An empty path brings the default back. */
    void setThemesDirectory(const QString &path);

private:
    PxDirectoryConfig();
    ~PxDirectoryConfig() = default;
    Q_DISABLE_COPY(PxDirectoryConfig)

    QString defaultThemesDirectory() const;

    QStringList m_resourceDirectories;
    QHash<QString, QString> m_resources;
    // Empty for the default.
    QString m_userDefaultsPath;
    QString m_themesDirectory;
};
