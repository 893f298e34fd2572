#include "commands/check/PxCheckFiles.h"

#include "check/source/PxCheckedFile.h"
#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"

#include <PxDirectoryConfig.h>
#include <values/PxUndecodableNames.h>

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

QString absolute(const QString &path)
{
    return QDir::cleanPath(QDir(path).absolutePath());
}

QString join(QString directory, const QString &name)
{
    while (directory.endsWith(QLatin1Char('/')))
        directory.chop(1);
    return directory + QLatin1Char('/') + name;
}

QString resource(const char *name)
{
    return PxDirectoryConfig::instance()->resource(QLatin1String(name), false);
}

/** Whether it is a copy or a version of such a file: images may well lie beside themes. */
bool looksLikeXml(const QString &name)
{
    return name.contains(QLatin1String(".xml"), Qt::CaseInsensitive);
}

} // namespace

PxCheckFiles::PxCheckFiles(const PxCommandLine &commandLine) : m_commandLine(commandLine)
{
    QStringList given = (m_commandLine.value("resources") + QDir::listSeparator() +
                         qEnvironmentVariable("PX_RESOURCE_DIRS"))
                            .split(QDir::listSeparator(), Qt::SkipEmptyParts);
    for (const char *option : {"products", "legacy", "user-defaults", "themes"})
        given.append(m_commandLine.value(option));
    for (const char *variable : {"PX_USER_DEFAULTS_DIR", "PX_THEMES_DIR"})
        given.append(qEnvironmentVariable(variable));
    given = m_commandLine.paths() + given;
    for (const QString &directory : qAsConst(given)) {
        if (!directory.isEmpty() && !m_shownOf.contains(absolute(directory)))
            m_shownOf.insert(absolute(directory), directory);
    }
}

QString PxCheckFiles::find()
{
    const QStringList paths = m_commandLine.paths();
    const QString problem = paths.isEmpty() || QFileInfo(paths.constFirst()).isDir()
                                ? findCatalogue()
                                : findSingleFiles(paths);
    for (QStringList *files : {&m_paths.products, &m_paths.legacyProducts, &m_paths.themes,
                               &m_paths.userDefaults, &m_paths.knownThemes, &m_paths.strays})
        files->sort();
    return problem;
}

QString PxCheckFiles::findCatalogue()
{
    m_paths.isCatalogue = true;
    m_paths.productTypes = shown(resource("producttypes.xml"));
    m_catalogueNames.insert(m_paths.productTypes, QStringLiteral("producttypes.xml"));
    if (QFileInfo::exists(resource("frames.xml"))) {
        m_paths.frames = shown(resource("frames.xml"));
        m_catalogueNames.insert(m_paths.frames, QStringLiteral("frames.xml"));
    }
    for (const Directory &directory : directories()) {
        const QString problem = findFiles(directory);
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

QVector<PxCheckFiles::Directory> PxCheckFiles::directories()
{
    return {
        {resource("products"), QStringLiteral("products"), Qt::CaseInsensitive, &m_paths.products},
        {resource("products/legacy"), QStringLiteral("products/legacy"), Qt::CaseInsensitive,
         &m_paths.legacyProducts},
        themes(&m_paths.themes),
        {PxDirectoryConfig::instance()->userDefaultsPath(), QStringLiteral("defaults"),
         Qt::CaseSensitive, &m_paths.userDefaults}};
}

PxCheckFiles::Directory PxCheckFiles::themes(QStringList *files)
{
    return {PxDirectoryConfig::instance()->lumoThemesDirectory(false).path(),
            QStringLiteral("themes"), Qt::CaseInsensitive, files};
}

QString PxCheckFiles::findFiles(const Directory &directory)
{
    const QString place = shown(directory.path);
    if (!QFileInfo::exists(directory.path))
        return QString();
    const QString problem = PxCatalogueDirectories::problemOf(place);
    if (!problem.isEmpty())
        return problem;
    if (const int count = PxUndecodableNames::count(place)) {
        m_paths.undecodableNames.insert(place, count);
        m_catalogueNames.insert(place, directory.name);
    }
    const bool isOfProducts = directory.name.startsWith(QLatin1String("products"));
    const QFileInfoList entries = QDir(place).entryInfoList(QDir::AllEntries | QDir::System |
                                                            QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const QString name = entry.fileName();
        const QString path = join(place, name);
        const bool hasEnding = name.endsWith(QLatin1String(".xml"), directory.ending);
        // Other directories and hidden files are no files that got a wrong name.
        const bool isElsewhere = entry.isDir() || entry.isHidden();
        if (hasEnding && entry.isFile() && !entry.isHidden())
            directory.files->append(path);
        else if (hasEnding || (!isElsewhere && (isOfProducts || looksLikeXml(name))))
            m_paths.strays.append(path);
        m_catalogueNames.insert(path, join(directory.name, name));
    }
    return QString();
}

QString PxCheckFiles::findSingleFiles(const QStringList &paths)
{
    QSet<QString> known;
    for (const QString &path : paths) {
        const QFileInfo file(path);
        const QString what = QStringLiteral("the file \"%1\" ").arg(path);
        if (!file.exists())
            return what + QLatin1String("does not exist");
        if (!file.isFile())
            return what + QLatin1String("is no regular file");
        if (!file.isReadable())
            return what + QLatin1String("cannot be read");
        if (known.contains(absolute(path)))
            continue;
        known.insert(absolute(path));
        const QStringList before{m_paths.productTypes, m_paths.frames};
        addSingleFile(path);
        if ((!before[0].isEmpty() && before[0] != m_paths.productTypes) ||
            (!before[1].isEmpty() && before[1] != m_paths.frames))
            return what + QLatin1String("is the second of its kind: check them one by one");
    }
    QStringList all;
    const QString problem = findFiles(themes(&all));
    m_paths.strays.clear(); // nobody asked for these
    m_paths.undecodableNames.clear();
    // A message that tells of both shall be the same wherever the catalogue lies.
    const bool areRelative = std::all_of(paths.begin(), paths.end(), QDir::isRelativePath);
    for (const QString &path : qAsConst(all)) {
        if (known.contains(absolute(path)))
            continue;
        const QString name = areRelative ? QDir::current().relativeFilePath(path) : path;
        m_catalogueNames.insert(name, m_catalogueNames.value(path));
        m_paths.knownThemes.append(name);
    }
    return problem;
}

/** What a file is follows from where it lies, as for the library, and elsewhere from what it says.
 */
void PxCheckFiles::addSingleFile(const QString &path)
{
    const PxCheckedFile file(path);
    const QString root = file.source().root() ? file.source().root()->name : QString();
    const QFileInfo info(path);
    for (const Directory &directory : directories()) {
        if (info.dir().canonicalPath() == QFileInfo(directory.path).canonicalFilePath()) {
            directory.files->append(path);
            m_catalogueNames.insert(path, join(directory.name, info.fileName()));
            return;
        }
    }
    const struct
    {
        bool isIt;
        const char *directory;
        QStringList *files;
    } rows[] = {
        {root.toLower() == QLatin1String("themes"), "themes", &m_paths.themes},
        {root == QLatin1String("userdefaults"), "defaults", &m_paths.userDefaults},
        {root != QLatin1String("producttypes") && root != QLatin1String("frames"), "products",
         info.dir().dirName() == QLatin1String("legacy") ? &m_paths.legacyProducts
                                                         : &m_paths.products},
    };
    for (const auto &row : rows) {
        if (row.isIt) {
            row.files->append(path);
            m_catalogueNames.insert(path, join(QLatin1String(row.directory), info.fileName()));
            return;
        }
    }
    const bool isFrames = root == QLatin1String("frames");
    (isFrames ? m_paths.frames : m_paths.productTypes) = path;
    m_catalogueNames.insert(path, root + QLatin1String(".xml"));
}

/** As the user gave it: the directory as it was written, and what is in it. */
QString PxCheckFiles::shown(const QString &absolutePath) const
{
    QString name;
    for (QString directory = absolutePath; !directory.isEmpty();
         directory = directory.left(directory.lastIndexOf(QLatin1Char('/')))) {
        if (m_shownOf.contains(directory)) {
            const QString given = m_shownOf.value(directory);
            return name.isEmpty() ? given : join(given, name);
        }
        const QString last = directory.mid(directory.lastIndexOf(QLatin1Char('/')) + 1);
        name = name.isEmpty() ? last : join(last, name);
    }
    return absolutePath;
}
