#include "PxCatalogueDirectories.h"

#include "PxCatalogueCommandLine.h"

#include <PxDirectoryConfig.h>

#include <QDir>
#include <QFileInfo>

namespace {

QString problemOf(const QString &directory)
{
    const QFileInfo info(directory);
    if (info.isDir() && info.isReadable() && info.isExecutable())
        return QString();
    return QStringLiteral("the directory \"%1\" %2")
        .arg(directory, info.isDir()    ? QLatin1String("cannot be read")
                        : info.exists() ? QLatin1String("is no directory")
                                        : QLatin1String("does not exist"));
}

} // namespace

PxCatalogueDirectories::PxCatalogueDirectories(const PxCatalogueCommandLine &commandLine)
    : m_commandLine(commandLine)
{}

QString PxCatalogueDirectories::apply() const
{
    const QString problem = useGivenOnes();
    if (!problem.isEmpty())
        return problem;
    auto *config = PxDirectoryConfig::instance();
    if (m_commandLine.value("user-defaults").isEmpty() &&
        qEnvironmentVariableIsEmpty("PX_USER_DEFAULTS_DIR"))
        config->setUserDefaultsPath(config->resource(QStringLiteral("defaults"), false));
    if (m_commandLine.value("themes").isEmpty() && qEnvironmentVariableIsEmpty("PX_THEMES_DIR"))
        config->setThemesDirectory(config->resource(QStringLiteral("themes"), false));
    return findCatalogue();
}

QString PxCatalogueDirectories::useGivenOnes() const
{
    auto *config = PxDirectoryConfig::instance();
    const QStringList resources =
        m_commandLine.value("resources").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    const QString products = m_commandLine.value("products");
    const QString legacy = m_commandLine.value("legacy");
    const QString userDefaults = m_commandLine.value("user-defaults");
    const QString themes = m_commandLine.value("themes");
    for (const QString &directory :
         resources + QStringList{products, legacy, userDefaults, themes}) {
        if (!directory.isEmpty() && !problemOf(directory).isEmpty())
            return problemOf(directory);
    }
    if (!resources.isEmpty())
        config->setResourceDirectories(resources);
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
    const QString hint = QStringLiteral(": name the resource directory with --resources");
    const QString problem = problemOf(config->resource(QStringLiteral("products"), false));
    if (!problem.isEmpty())
        return problem + hint;
    const QString types = config->resource(QStringLiteral("producttypes.xml"), false);
    if (!QFileInfo(types).isReadable())
        return QStringLiteral("the file \"%1\", without which no product is known, cannot be read")
                   .arg(types) +
               hint;
    return QString();
}
