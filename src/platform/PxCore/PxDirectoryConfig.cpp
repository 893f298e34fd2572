#include "PxDirectoryConfig.h"

#include <PxCreateOnce.h>
#include <PxMessage.h>

#include <QAtomicPointer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QStandardPaths>

#include <algorithm>

#include <dlfcn.h>

namespace {

/** An empty path stays empty; made absolute, it would become the current directory. */
QString absolute(const QString &path)
{
    return path.isEmpty() ? path : QDir::cleanPath(QDir(path).absolutePath());
}

/** The resource directory that was installed with the library in which this code is. */
QString installedResources()
{
    Dl_info library{};
    dladdr(reinterpret_cast<const void *>(&installedResources), &library);
    const QFileInfo file(QFile::decodeName(library.dli_fname));
    // The library may be reached through a link elsewhere; the resources are beside its real file.
    const QFileInfo target(file.canonicalFilePath());
    const QDir directory = target.exists() ? target.dir() : file.dir();
    return absolute(directory.absoluteFilePath(QStringLiteral(PX_RESOURCES_FROM_LIBRARY)));
}

/**
 * Qt keeps the name of the application, which is part of a path, in an object that it creates on
 * first use. It destroys such objects in the reverse order of their creation: created when this
 * library is loaded, this one outlives the static objects of the program, whose destructors may
 * still read files.
 */
void keepApplicationName()
{
    QCoreApplication::applicationName();
}
Q_CONSTRUCTOR_FUNCTION(keepApplicationName)

} // namespace

PxDirectoryConfig *PxDirectoryConfig::instance()
{
    static QAtomicPointer<PxDirectoryConfig> ourInstance;
    static QBasicMutex ourMutex;
    return pxCreateOnce(ourInstance, ourMutex, [] { return new PxDirectoryConfig; });
}

PxDirectoryConfig::PxDirectoryConfig()
{
    setResourceDirectories(
        qEnvironmentVariable("PX_RESOURCE_DIRS").split(QDir::listSeparator(), Qt::SkipEmptyParts));
    setUserDefaultsPath(qEnvironmentVariable("PX_USER_DEFAULTS_DIR"));
    setThemesDirectory(qEnvironmentVariable("PX_THEMES_DIR"));
}

QString PxDirectoryConfig::resource(const QString &name, bool reportMissing) const
{
    const auto named = m_resources.constFind(name);
    if (named != m_resources.constEnd()) {
        if (reportMissing && !QFileInfo::exists(*named))
            pxWarning() << "PxDirectoryConfig::resource" << name << "is missing, set to" << *named;
        return *named;
    }
    for (const QString &directory : m_resourceDirectories) {
        const QString path = QDir(directory).absoluteFilePath(name);
        if (QFileInfo::exists(path))
            return path;
    }
    if (reportMissing)
        pxWarning() << "PxDirectoryConfig::resource" << name << "is missing, searched in"
                    << m_resourceDirectories;
    return QDir(m_resourceDirectories.first()).absoluteFilePath(name);
}

QString PxDirectoryConfig::userDefaultsPath() const
{
    if (!m_userDefaultsPath.isEmpty())
        return m_userDefaultsPath;
    const QDir data(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    return data.absoluteFilePath(QStringLiteral("defaults"));
}

QDir PxDirectoryConfig::lumoThemesDirectory(bool reportMissing) const
{
    const QDir themes(m_themesDirectory.isEmpty() ? defaultThemesDirectory() : m_themesDirectory);
    if (reportMissing && !themes.exists())
        pxWarning() << "PxDirectoryConfig::lumoThemesDirectory is missing:" << themes.path();
    return themes;
}

/** Only a directory counts: a file with this name is skipped. */
QString PxDirectoryConfig::defaultThemesDirectory() const
{
    const auto themesOf = [](const QString &directory) {
        return QDir(directory).absoluteFilePath(QStringLiteral("themes"));
    };
    const auto found =
        std::find_if(m_resourceDirectories.begin(), m_resourceDirectories.end(),
                     [&](const QString &directory) { return QDir(themesOf(directory)).exists(); });
    return themesOf(found == m_resourceDirectories.end() ? m_resourceDirectories.first() : *found);
}

void PxDirectoryConfig::setResourceDirectories(const QStringList &directories)
{
    m_resourceDirectories.clear();
    for (const QString &directory : directories) {
        if (!directory.isEmpty())
            m_resourceDirectories.append(absolute(directory));
    }
    if (m_resourceDirectories.isEmpty())
        m_resourceDirectories.append(installedResources());
}

void PxDirectoryConfig::setResource(const QString &name, const QString &path)
{
    if (path.isEmpty())
        m_resources.remove(name);
    else
        m_resources.insert(name, absolute(path));
}

void PxDirectoryConfig::setUserDefaultsPath(const QString &path)
{
    m_userDefaultsPath = absolute(path);
}

void PxDirectoryConfig::setThemesDirectory(const QString &path)
{
    m_themesDirectory = absolute(path);
}
