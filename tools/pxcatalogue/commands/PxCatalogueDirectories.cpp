#include "commands/PxCatalogueDirectories.h"

#include "commands/PxCommandLine.h"

#include <PxDirectoryConfig.h>
#include <PxXMLLoader.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

/** The nearest directory around a file that has product types; empty when there is none. */
QString resourcesAbove(const QString &path)
{
    QDir directory = QFileInfo(path).absoluteDir();
    while (!directory.exists(QStringLiteral("producttypes.xml"))) {
        if (!directory.cdUp())
            return QString();
    }
    return directory.path();
}

} // namespace

PxCatalogueDirectories::PxCatalogueDirectories(const PxCommandLine &commandLine)
    : m_commandLine(commandLine)
{}

QString PxCatalogueDirectories::problemOf(const QString &directory)
{
    const QFileInfo info(directory);
    if (info.isDir() && info.isReadable() && info.isExecutable())
        return QString();
    return QStringLiteral("the directory \"%1\" %2")
        .arg(directory, info.isDir()    ? QLatin1String("cannot be read")
                        : info.exists() ? QLatin1String("is no directory")
                                        : QLatin1String("does not exist"));
}

QString PxCatalogueDirectories::apply() const
{
    const QString problem = useGivenOnes();
    if (!problem.isEmpty())
        return problem;
    return findCatalogue();
}

bool PxCatalogueDirectories::isCheck() const
{
    return m_commandLine.command() == PxCommandLine::Command::Check;
}

bool PxCatalogueDirectories::isCheckOfFiles() const
{
    return isCheck() && !m_commandLine.paths().isEmpty() &&
           !QFileInfo(m_commandLine.paths().constFirst()).isDir();
}

/** The resource directories that the command line names, or means by the files that it names. */
QString PxCatalogueDirectories::readResources(QStringList *resources) const
{
    *resources = m_commandLine.value("resources").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    const QStringList paths = isCheck() ? m_commandLine.paths() : QStringList();
    const int directories = int(std::count_if(
        paths.begin(), paths.end(), [](const QString &path) { return QFileInfo(path).isDir(); }));
    if (directories > 0 && paths.size() > 1)
        return QStringLiteral("check takes one resource directory, or files");
    if (directories > 0 && !resources->isEmpty())
        return QStringLiteral("\"%1\" and --resources both name the resource directory")
            .arg(paths.constFirst());
    if (directories > 0)
        *resources = paths;
    if (directories > 0 || !resources->isEmpty() ||
        !qEnvironmentVariableIsEmpty("PX_RESOURCE_DIRS"))
        return QString();
    for (const QString &path : paths) {
        if (!QFileInfo::exists(path))
            return QStringLiteral("the file \"%1\" does not exist").arg(path);
        const QString directory = resourcesAbove(path);
        if (directory.isEmpty())
            return QStringLiteral("no directory above \"%1\" has a file producttypes.xml: name the "
                                  "resource directory with --resources")
                .arg(path);
        if (!resources->isEmpty() && resources->constFirst() != directory)
            return QStringLiteral(
                       "\"%1\" and \"%2\" are of different catalogues: check them one by "
                       "one")
                .arg(paths.constFirst(), path);
        *resources = QStringList{directory};
    }
    return QString();
}

QString PxCatalogueDirectories::useGivenOnes() const
{
    auto *config = PxDirectoryConfig::instance();
    QStringList resources;
    const QString problem = readResources(&resources);
    if (!problem.isEmpty())
        return problem;
    const QString products = m_commandLine.value("products");
    const QString legacy = m_commandLine.value("legacy");
    const QString userDefaults = m_commandLine.value("user-defaults");
    const QString themes = m_commandLine.value("themes");
    for (const QString &directory :
         resources + QStringList{products, legacy, userDefaults, themes}) {
        if (!directory.isEmpty() && !problemOf(directory).isEmpty())
            return problemOf(directory);
    }
    if (!resources.isEmpty()) { // a catalogue is named: with all that is in it
        config->setResourceDirectories(resources);
        config->setUserDefaultsPath(config->resource(QStringLiteral("defaults"), false));
        config->setThemesDirectory(QString());
    }
    if (!userDefaults.isEmpty())
        config->setUserDefaultsPath(userDefaults);
    if (!themes.isEmpty())
        config->setThemesDirectory(themes);
    config->setResource(QStringLiteral("products"), products);
    config->setResource(QStringLiteral("products/legacy"), legacy);
    return QString();
}

QString PxCatalogueDirectories::findCatalogue() const
{
    const auto *config = PxDirectoryConfig::instance();
    // A directory that is named as PATH is the resource directory already.
    const QString hint = isCheck() && !m_commandLine.paths().isEmpty()
                             ? QString()
                             : QStringLiteral(": name the resource directory with --resources");
    if (!isCheckOfFiles()) {
        const QString problem = problemOf(config->resource(QStringLiteral("products"), false));
        if (!problem.isEmpty())
            return problem + hint;
    }
    const QString types = config->resource(QStringLiteral("producttypes.xml"), false);
    const QString problem =
        QStringLiteral("the file \"%1\", without which no product is known, cannot be read")
            .arg(types);
    if (!QFileInfo(types).isReadable())
        return problem + hint;
    if (isCheck()) // which reports what is wrong in the file, with the place
        return QString();
    QString error;
    const QDomElement root = PxXMLLoader::loadDocumentElement(QFileInfo(types), &error);
    if (root.isNull())
        return problem + QLatin1String(": ") + error;
    if (root.tagName() != QLatin1String("producttypes"))
        return problem + QLatin1String(": the document element is not producttypes");
    return QString();
}
