#include "commands/PxCatalogueDirectories.h"

#include "commands/PxCommandLine.h"

#include <PxDirectoryConfig.h>
#include <PxXMLLoader.h>

#include <QDir>
#include <QDomElement>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr const char *howToNameIt = ": name the resource directory with --resources";

bool isDirectory(const QString &path)
{
    return QFileInfo(path).isDir();
}

QString resource(const char *name)
{
    return PxDirectoryConfig::instance()->resource(name, false);
}

/** The nearest directory above a file with a producttypes.xml; empty if there is none. */
QString resourcesAbove(const QString &path)
{
    QDir directory = QFileInfo(path).absoluteDir();
    while (!directory.exists("producttypes.xml")) {
        if (!directory.cdUp())
            return QString();
    }
    return directory.path();
}

/** Finds the one catalogue that all the files belong to. */
std::optional<PxProblem> findResourcesAbove(const QStringList &paths, QStringList *resources)
{
    for (const QString &path : paths) {
        if (!QFileInfo::exists(path))
            return PxProblem{QString("the file \"%1\" does not exist").arg(path)};
        const QString directory = resourcesAbove(path);
        if (directory.isEmpty())
            return PxProblem{
                QString("no directory above \"%1\" has a file producttypes.xml").arg(path) +
                howToNameIt};
        if (!resources->isEmpty() && resources->constFirst() != directory)
            return PxProblem{
                QString("\"%1\" and \"%2\" belong to different catalogues: check them one by one")
                    .arg(paths.constFirst(), path)};
        *resources = QStringList{directory};
    }
    return std::nullopt;
}

PxProblem problemOfTypes(const QString &path, const QString &reason)
{
    return {
        QString("the file \"%1\", without which no product is known, cannot be read").arg(path) +
        reason};
}

std::optional<PxProblem> findFiles(bool needsProducts, const QString &remedy)
{
    const auto problem =
        needsProducts ? PxCatalogueDirectories::problemOf(resource("products")) : std::nullopt;
    if (problem)
        return PxProblem{problem->text + remedy};
    const QString types = resource("producttypes.xml");
    if (!QFileInfo(types).isReadable())
        return problemOfTypes(types, remedy);
    return std::nullopt;
}

/** Unlike an application, a check needs all the directories that it shall check. */
std::optional<PxProblem> problemOfEnvironment()
{
    const QStringList directories =
        qEnvironmentVariable("PX_RESOURCE_DIRS").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    for (const QString &directory : directories) {
        if (const auto problem = PxCatalogueDirectories::problemOf(directory))
            return PxProblem{"PX_RESOURCE_DIRS: " + problem->text};
    }
    return std::nullopt;
}

/** Whether at least one part of a catalogue is there. */
bool isPartOfCatalogue()
{
    return QFileInfo::exists(resource("producttypes.xml")) || isDirectory(resource("products")) ||
           isDirectory(resource("themes"));
}

/** Why a directory that is named as PATH is no catalogue. */
PxProblem problemOfPath(const QString &path)
{
    const QDir above = QFileInfo(path).absoluteDir();
    if (above.exists("producttypes.xml"))
        return {QString("\"%1\" is a part of the catalogue \"%2\": check that, or single files")
                    .arg(path, above.path())};
    return {QString("\"%1\" is no catalogue: it has no producttypes.xml, no products and no themes")
                .arg(path)};
}

std::optional<PxProblem> readTypes()
{
    const QString path = resource("producttypes.xml");
    QString error;
    const QDomElement root = PxXMLLoader::loadDocumentElement(QFileInfo(path), &error);
    if (root.isNull())
        return problemOfTypes(path, ": " + error);
    if (root.tagName() != "producttypes")
        return problemOfTypes(path, ": the document element is not producttypes");
    return std::nullopt;
}

/** Finds the resource directories: those of the command line, else those above its files. */
std::optional<PxProblem> findResources(const PxCommandLine &line, const QStringList &paths,
                                       QStringList *resources)
{
    *resources = line.value("resources").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    const bool haveDirectory = std::any_of(paths.begin(), paths.end(), isDirectory);
    if (haveDirectory && paths.size() > 1)
        return PxProblem{"check takes one resource directory, or files"};
    if (haveDirectory && !resources->isEmpty())
        return PxProblem{QString("\"%1\" and --resources both name the resource directory")
                             .arg(paths.constFirst())};
    if (haveDirectory)
        *resources = paths;
    // What is named on the command line is checked, whatever the environment names.
    return resources->isEmpty() ? findResourcesAbove(paths, resources) : std::nullopt;
}

/** A named catalogue comes with its own themes and defaults. */
void useResources(const QStringList &directories)
{
    auto *config = PxDirectoryConfig::instance();
    config->setResourceDirectories(directories);
    config->setUserDefaultsPath(config->resource("defaults", false));
    config->setThemesDirectory(config->resource("themes", false));
}

std::optional<PxProblem> useGivenOnes(const PxCommandLine &line, const QStringList &paths)
{
    QStringList resources;
    if (const auto problem = findResources(line, paths, &resources))
        return problem;
    const QString products = line.value("products");
    const QString legacy = line.value("legacy");
    const QString userDefaults = line.value("user-defaults");
    const QString themes = line.value("themes");
    for (const QString &directory :
         resources + QStringList{products, legacy, userDefaults, themes}) {
        const auto problem =
            directory.isEmpty() ? std::nullopt : PxCatalogueDirectories::problemOf(directory);
        if (problem)
            return problem;
    }
    auto *config = PxDirectoryConfig::instance();
    if (!resources.isEmpty())
        useResources(resources);
    if (!userDefaults.isEmpty())
        config->setUserDefaultsPath(userDefaults);
    if (!themes.isEmpty())
        config->setThemesDirectory(themes);
    config->setResource("products", products);
    config->setResource("products/legacy", legacy);
    return std::nullopt;
}

} // namespace

std::optional<PxProblem> PxCatalogueDirectories::problemOf(const QString &directory)
{
    const QFileInfo info(directory);
    if (info.isDir() && info.isReadable() && info.isExecutable())
        return std::nullopt;
    return PxProblem{QString("the directory \"%1\" %2")
                         .arg(directory, info.isDir()    ? "cannot be read"
                                         : info.exists() ? "is no directory"
                                                         : "does not exist")};
}

QString PxCatalogueDirectories::origin(const PxCommandLine &line)
{
    if (!line.arguments().isEmpty())
        return QString();
    const auto isOfEnvironment = [&line](const char *variable) {
        return !line.isSet("resources") && !qEnvironmentVariableIsEmpty(variable);
    };
    QStringList origins{line.isSet("resources")               ? "--resources"
                        : isOfEnvironment("PX_RESOURCE_DIRS") ? "PX_RESOURCE_DIRS"
                                                              : "installed with the library"};
    if (isOfEnvironment("PX_THEMES_DIR") && !line.isSet("themes"))
        origins.append("its themes: PX_THEMES_DIR");
    if (isOfEnvironment("PX_USER_DEFAULTS_DIR") && !line.isSet("user-defaults"))
        origins.append("its user defaults: PX_USER_DEFAULTS_DIR");
    return origins.join("; ");
}

std::optional<PxProblem> PxCatalogueDirectories::apply(const PxCommandLine &line)
{
    auto problem = useGivenOnes(line, {});
    if (!problem)
        problem = findFiles(true, howToNameIt);
    return problem ? problem : readTypes();
}

std::optional<PxProblem> PxCatalogueDirectories::applyResources(const QString &directory)
{
    if (const auto problem = problemOf(directory))
        return problem;
    useResources({directory});
    const auto problem = findFiles(true, QString());
    return problem ? problem : readTypes();
}

QStringList PxCatalogueDirectories::sources()
{
    const auto *config = PxDirectoryConfig::instance();
    return {resource("products"), resource("products/legacy"),
            config->lumoThemesDirectory(false).path(), config->userDefaultsPath()};
}

std::optional<PxProblem> PxCatalogueDirectories::applyForCheck(const PxCommandLine &line)
{
    const QStringList paths = line.arguments();
    auto problem = useGivenOnes(line, paths);
    if (!problem && paths.isEmpty() && !line.isSet("resources"))
        problem = problemOfEnvironment();
    if (problem)
        return problem;
    const bool areFiles = !paths.isEmpty() && !isDirectory(paths.constFirst());
    if (areFiles)
        return findFiles(false, QString());
    if (isPartOfCatalogue())
        return std::nullopt; // the check itself reports what is missing
    return paths.isEmpty() ? findFiles(true, howToNameIt) : problemOfPath(paths.constFirst());
}
