#include "commands/check/PxCheckFiles.h"

#include "check/source/PxCheckedFile.h"
#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "commands/check/PxUnreadFiles.h"

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
    while (directory.endsWith('/'))
        directory.chop(1);
    return directory + '/' + name;
}

QString resource(const char *name)
{
    return PxDirectoryConfig::instance()->resource(name, false);
}

} // namespace

PxCheckFiles::PxCheckFiles(const PxCommandLine &line)
    : m_given(line.arguments())
    , m_origin(PxCatalogueDirectories::origin(line))
{
    QStringList given =
        (line.value("resources") + QDir::listSeparator() + qEnvironmentVariable("PX_RESOURCE_DIRS"))
            .split(QDir::listSeparator(), Qt::SkipEmptyParts);
    if (m_given.isEmpty())
        m_resources = (line.isSet("resources") ? line.value("resources")
                                               : qEnvironmentVariable("PX_RESOURCE_DIRS"))
                          .split(QDir::listSeparator(), Qt::SkipEmptyParts);
    if (line.isSet("products"))
        m_resources.clear(); // the products are not those of a resource directory
    for (const char *option : {"products", "legacy", "user-defaults", "themes"})
        given.append(line.value(option));
    for (const char *variable : {"PX_USER_DEFAULTS_DIR", "PX_THEMES_DIR"})
        given.append(qEnvironmentVariable(variable));
    given = m_given + given;
    for (const QString &directory : qAsConst(given)) {
        if (!directory.isEmpty() && !m_shownOf.contains(absolute(directory)))
            m_shownOf.insert(absolute(directory), directory);
    }
}

std::optional<PxProblem> PxCheckFiles::find()
{
    const bool isCatalogue = m_given.isEmpty() || QFileInfo(m_given.constFirst()).isDir();
    const auto problem = isCatalogue ? findCatalogue() : findSingleFiles();
    for (QStringList *files :
         {&m_paths.products, &m_paths.legacyProducts, &m_paths.themes, &m_paths.userDefaults,
          &m_paths.knownThemes, &m_paths.strays, &m_paths.deadLinks})
        files->sort();
    return problem;
}

std::optional<PxCheckedCatalogue> PxCheckFiles::catalogue() const
{
    if (!m_paths.isCatalogue)
        return std::nullopt;
    PxCheckedCatalogue catalogue;
    catalogue.path = shown(QFileInfo(resource("producttypes.xml")).path());
    catalogue.from = m_origin;
    return catalogue;
}

std::optional<PxProblem> PxCheckFiles::findCatalogue()
{
    m_paths.isCatalogue = true;
    m_paths.productTypes = shown(resource("producttypes.xml"));
    m_catalogueNames.insert(m_paths.productTypes, "producttypes.xml");
    if (QFileInfo::exists(resource("frames.xml"))) {
        m_paths.frames = shown(resource("frames.xml"));
        m_catalogueNames.insert(m_paths.frames, "frames.xml");
    }
    for (const Directory &directory : directories()) {
        m_catalogueNames.insert(shown(directory.path), directory.name);
        if (const auto problem = findFiles(directory))
            return problem;
    }
    m_paths.productsDirectory = shown(resource("products"));
    m_paths.themesDirectory = shown(themes(nullptr).path);
    m_paths.userDefaultsDirectory = shown(PxDirectoryConfig::instance()->userDefaultsPath());
    findUnread();
    return std::nullopt;
}

/** Finds what lies in the resource directories, but is not read. */
void PxCheckFiles::findUnread()
{
    QStringList read;
    for (const Directory &directory : directories())
        read.append(directory.path);
    PxUnreadFiles unread(read, m_paths, m_catalogueNames);
    unread.findInside(m_paths.productsDirectory, "products");
    unread.findInside(m_paths.themesDirectory, "themes");
    unread.findHidden(m_resources, "products", m_paths.productsDirectory);
    unread.findHidden(m_resources, "themes", m_paths.themesDirectory);
    QStringList resources = m_resources + m_given;
    if (resources.isEmpty())
        resources.append(QFileInfo(m_paths.productTypes).path());
    for (const QString &directory : qAsConst(resources))
        unread.findBeside(directory);
}

QVector<PxCheckFiles::Directory> PxCheckFiles::directories()
{
    return {{resource("products"), "products", Qt::CaseInsensitive, &m_paths.products},
            {resource("products/legacy"), "products/legacy", Qt::CaseInsensitive,
             &m_paths.legacyProducts},
            themes(&m_paths.themes),
            {PxDirectoryConfig::instance()->userDefaultsPath(), "defaults", Qt::CaseSensitive,
             &m_paths.userDefaults}};
}

PxCheckFiles::Directory PxCheckFiles::themes(QStringList *files)
{
    return {PxDirectoryConfig::instance()->lumoThemesDirectory(false).path(), "themes",
            Qt::CaseInsensitive, files};
}

std::optional<PxProblem> PxCheckFiles::findFiles(const Directory &directory)
{
    const QString place = shown(directory.path);
    if (!QFileInfo::exists(directory.path))
        return std::nullopt;
    if (const auto problem = PxCatalogueDirectories::problemOf(place))
        return problem;
    if (const int count = PxUndecodableNames::count(place)) {
        m_paths.undecodableNames.insert(place, count);
        m_catalogueNames.insert(place, directory.name);
    }
    const bool isOfProducts = directory.name.startsWith("products");
    const QFileInfoList entries = QDir(place).entryInfoList(QDir::AllEntries | QDir::System |
                                                            QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const QString name = entry.fileName();
        const QString path = join(place, name);
        const bool hasEnding = name.endsWith(".xml", directory.ending);
        // Directories and hidden files are no product files with a wrong name.
        const bool isElsewhere = entry.isDir() || entry.isHidden();
        // True for backup copies, for example. Images and other files may lie beside themes.
        const bool looksLikeXml = name.contains(".xml", Qt::CaseInsensitive);
        if (hasEnding && entry.isFile() && !entry.isHidden())
            directory.files->append(path);
        else if (hasEnding && entry.isSymLink() && !entry.exists() && !entry.isHidden())
            m_paths.deadLinks.append(path);
        else if (hasEnding || (!isElsewhere && (isOfProducts || looksLikeXml)))
            m_paths.strays.append(path);
        m_catalogueNames.insert(path, join(directory.name, name));
    }
    return std::nullopt;
}

std::optional<PxProblem> PxCheckFiles::findSingleFiles()
{
    QSet<QString> known;
    for (const QString &path : m_given) {
        const QFileInfo file(path);
        const QString what = QString("the file \"%1\" ").arg(path);
        if (!file.exists())
            return PxProblem{what + "does not exist"};
        if (!file.isFile())
            return PxProblem{what + "is no regular file"};
        if (!file.isReadable())
            return PxProblem{what + "cannot be read"};
        if (known.contains(absolute(path)))
            continue;
        known.insert(absolute(path));
        if (!addSingleFile(path))
            return PxProblem{what + "is the second of its kind: check them one by one"};
    }
    return findKnownThemes(known);
}

/** Finds the theme files that are only read for their ids, because they are not to be checked. */
std::optional<PxProblem> PxCheckFiles::findKnownThemes(const QSet<QString> &checked)
{
    QStringList all;
    const auto problem = findFiles(themes(&all));
    m_paths.strays.clear(); // only files that the user named are checked
    m_paths.deadLinks.clear();
    m_paths.undecodableNames.clear();
    // Messages that name two files must not depend on where the catalogue lies.
    const bool areRelative = std::all_of(m_given.begin(), m_given.end(), QDir::isRelativePath);
    for (const QString &path : qAsConst(all)) {
        if (checked.contains(absolute(path)))
            continue;
        const QString name = areRelative ? QDir::current().relativeFilePath(path) : path;
        m_catalogueNames.insert(name, m_catalogueNames.value(path));
        m_paths.knownThemes.append(name);
    }
    return problem;
}

/**
 * The directory of a file decides what kind it is, as in the library; elsewhere its document
 * element does. Returns false for a second file of a kind of which a catalogue has only one.
 */
bool PxCheckFiles::addSingleFile(const QString &path)
{
    const QFileInfo info(path);
    const auto add = [&](QStringList *files, const QString &directory) {
        files->append(path);
        m_catalogueNames.insert(path, join(directory, info.fileName()));
        return true;
    };
    for (const Directory &directory : directories()) {
        if (info.dir().canonicalPath() == QFileInfo(directory.path).canonicalFilePath())
            return add(directory.files, directory.name);
    }
    const PxCheckedFile file(path);
    const QString root = file.source().root() ? file.source().root()->name : QString();
    if (root.toLower() == "themes")
        return add(&m_paths.themes, "themes");
    if (root == "userdefaults")
        return add(&m_paths.userDefaults, "defaults");
    if (root != "producttypes" && root != "frames")
        return add(info.dir().dirName() == "legacy" ? &m_paths.legacyProducts : &m_paths.products,
                   "products");
    QString &only = root == "frames" ? m_paths.frames : m_paths.productTypes;
    m_catalogueNames.insert(path, root + ".xml");
    const bool isFirst = only.isEmpty();
    only = path;
    return isFirst;
}

/** The path as the user would write it: starting with the directory as the user wrote it. */
QString PxCheckFiles::shown(const QString &absolutePath) const
{
    QString name;
    for (QString directory = absolutePath; !directory.isEmpty();
         directory = directory.left(directory.lastIndexOf('/'))) {
        if (m_shownOf.contains(directory)) {
            const QString given = m_shownOf.value(directory);
            return name.isEmpty() ? given : join(given, name);
        }
        const QString last = directory.mid(directory.lastIndexOf('/') + 1);
        name = name.isEmpty() ? last : join(last, name);
    }
    return absolutePath;
}
