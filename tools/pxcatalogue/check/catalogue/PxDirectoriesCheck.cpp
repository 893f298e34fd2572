#include "check/catalogue/PxDirectoriesCheck.h"

#include "check/PxCheckLimits.h"
#include "check/source/PxFileHead.h"
#include "format/PxFormat.h"

#include <PxProductType.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace {

/** What is wrong with a directory without files to read. */
QString emptiness(const QString &directory, const char *kind)
{
    const QFileInfo info(directory);
    return info.isDir()       ? QString("there is no %1 in this directory").arg(kind)
           : info.isSymLink() ? "this link leads nowhere"
                              : "this directory does not exist";
}

} // namespace

void PxDirectoriesCheck::run() const
{
    if (m_paths.isCatalogue) {
        checkProductTypes();
        checkProducts();
        checkThemes();
    }
    checkUndecodableNames();
    checkDeadLinks();
    for (const QString &path : m_paths.strays)
        checkStray(path);
    for (const PxUnreadDirectory &directory : m_paths.unreadDirectories)
        checkUnread(directory);
    for (const PxMisplacedFile &file : m_paths.misplacedFiles)
        checkMisplaced(file);
}

void PxDirectoriesCheck::checkProducts() const
{
    if (m_paths.products.isEmpty() && m_paths.deadLinks.isEmpty())
        m_report
            .add(PxTag::ProductsNone, PxPlace{m_paths.productsDirectory},
                 emptiness(m_paths.productsDirectory, "product file"))
            .now("no product is offered")
            .hint([&] {
                const QString hint = hintFor(m_paths.productsDirectory);
                return hint.isEmpty() ? "put the product files there" : hint;
            });
}

void PxDirectoriesCheck::checkThemes() const
{
    if (!m_paths.themes.isEmpty())
        return;
    const QString message = emptiness(m_paths.themesDirectory, "theme file");
    const PxPlace place{m_paths.themesDirectory};
    const QString hint = hintFor(m_paths.themesDirectory);
    if (m_contents.namedTheme.path.isEmpty())
        m_report.add(PxTag::ThemesNone, place, message).now("no theme is offered").hint(hint);
    else
        m_report
            .add(PxTag::ThemesLost, place, message + ", but a product names a theme in %1",
                 m_contents.namedTheme)
            .now("no theme is offered, and nothing finds the templates of that theme")
            .hint(hint.isEmpty() ? "put the theme files there" : hint);
}

void PxDirectoriesCheck::checkUndecodableNames() const
{
    const QMap<QString, int> &undecodable = m_paths.undecodableNames;
    for (auto it = undecodable.begin(); it != undecodable.end(); ++it)
        m_report
            .add(PxTag::FileNameUndecodable, PxPlace{it.key()},
                 "names of XML files that are not in the encoding of the locale: %1", *it)
            .now("the library passes them over")
            .hint("rename them; an archive may have been unpacked in another encoding");
}

void PxDirectoriesCheck::checkDeadLinks() const
{
    for (const QString &path : m_paths.deadLinks)
        m_report.add(PxTag::FileUnreadable, PxPlace{path}, "this link leads nowhere")
            .now("the library passes it over")
            .hint("mend the link, or take it out");
}

void PxDirectoriesCheck::checkStray(const QString &path) const
{
    const QFileInfo file(path);
    QString message = "the library does not read this file";
    QString hint = "files that are read end in \".xml\"";
    if (file.isSymLink() && !file.exists()) {
        message = "this link leads nowhere";
        hint = "mend the link, or take it out";
    } else if (!file.isFile()) {
        message = file.isDir() ? "this is a directory" : "this is no regular file";
        hint = "move it elsewhere";
    } else if (file.isHidden()) {
        message = "this file is hidden, as its name begins with a dot";
        hint = "take the dot out of the name, or move the file elsewhere";
    }
    m_report.add(PxTag::FileNotRead, PxPlace{path}, message)
        .now("the library passes it over")
        .hint(hint);
}

void PxDirectoriesCheck::checkUnread(const PxUnreadDirectory &directory) const
{
    switch (directory.kind) {
    case PxUnreadDirectory::Kind::Inside:
        checkInside(directory);
        break;
    case PxUnreadDirectory::Kind::Misnamed:
        checkMisnamed(directory);
        break;
    case PxUnreadDirectory::Kind::Hidden:
        checkHidden(directory);
        break;
    }
}

void PxDirectoriesCheck::checkInside(const PxUnreadDirectory &directory) const
{
    m_report
        .add(PxTag::FileNotRead, PxPlace{directory.path},
             "XML files in a directory below the one that is read: %1", directory.fileCount)
        .now("the library reads no directory below")
        .hint("move them one directory up, or out of the catalogue");
}

/** If nothing else is there, that has been reported with the name of this directory. */
void PxDirectoriesCheck::checkMisnamed(const PxUnreadDirectory &directory) const
{
    const QString name = QFileInfo(directory.read).fileName();
    const bool isOther = QFileInfo(directory.read).isDir();
    if ((name == "products" && m_paths.products.isEmpty()) ||
        (name == "themes" && m_paths.themes.isEmpty()))
        return;
    m_report
        .add(PxTag::FileNotRead, PxPlace{directory.path}, "XML files in a directory \"%1\": %2",
             QFileInfo(directory.path).fileName(), directory.fileCount)
        .now("the library does not read this directory, only \"%1\"", name)
        .hint(isOther ? "move them to \"%1\"" : "rename it to \"%1\"", name);
}

/** An overlay that has a file for each product hides nothing. */
void PxDirectoriesCheck::checkHidden(const PxUnreadDirectory &directory) const
{
    const bool isOfThemes = QFileInfo(directory.path).fileName() == "themes";
    const PxFileKind kind = isOfThemes ? PxFileKind::Theme : PxFileKind::Product;
    int lost = 0;
    QDirIterator files(directory.path, QDir::Files);
    for (int i = 0; i < PxCheckLimits::heads && files.hasNext(); ++i)
        lost += isLost(files.next(), kind) ? 1 : 0;
    const PxPlace place{directory.path};
    const char *now = "only \"%1\" is read";
    if (lost > 0)
        m_report
            .add(isOfThemes ? PxTag::ThemesHidden : PxTag::ProductsHidden, place,
                 isOfThemes ? "files with themes that nothing else has: %1"
                            : "files of products that nothing else describes: %1",
                 lost)
            .now(now, directory.read)
            .hint(isOfThemes ? "put all themes into one directory"
                             : "put all products into one directory");
    else if (!isOfThemes)
        m_report
            .add(PxTag::FileNotRead, place, "XML files in a second directory of products: %1",
                 directory.fileCount)
            .now(now, directory.read)
            .hint("put all products into one directory");
}

/** Whether the file has a product or a theme that no file that is read has. */
bool PxDirectoriesCheck::isLost(const QString &path, PxFileKind kind) const
{
    if (!path.endsWith(".xml", Qt::CaseInsensitive))
        return false;
    const PxFileHead head(path);
    const QStringList names = head.names();
    const QStringList &ids = m_contents.themeIds; // empty if not all are known
    const auto isOnlyHere = [&](const QString &name) {
        return kind == PxFileKind::Theme
                   ? !ids.isEmpty() && !std::binary_search(ids.begin(), ids.end(), name.toLower())
                   : PxProductType(name).isValid() &&
                         !m_contents.productNames.contains(name.trimmed().toCaseFolded());
    };
    return head.kind() == kind && std::any_of(names.begin(), names.end(), isOnlyHere);
}

void PxDirectoriesCheck::checkMisplaced(const PxMisplacedFile &file) const
{
    const bool isAlone = file.kind == PxFileKind::ProductTypes || file.kind == PxFileKind::Frames;
    const QString name = isAlone ? PxFormat::root(file.kind).name + QString(".xml") : QString();
    const QString meant = isAlone ? QFileInfo(file.path).dir().filePath(name)
                          : file.kind == PxFileKind::Theme   ? m_paths.themesDirectory
                          : file.kind == PxFileKind::Product ? m_paths.productsDirectory
                                                             : m_paths.userDefaultsDirectory;
    const bool isFree = !QFileInfo::exists(meant);
    if (file.kind == PxFileKind::ProductTypes && isFree)
        return; // it has been reported that the file is missing, with this one
    m_report
        .add(PxTag::FileNotRead, PxPlace{file.path}, "the library does not look for \"%1\" here",
             QFileInfo(file.path).fileName())
        .now("it is passed over")
        .hint(!isAlone ? "move it to \"%1\", or out of the catalogue"
              : isFree ? "rename it to \"%1\""
                       : "only \"%1\" is read: move it out of the catalogue",
              isAlone ? name : meant);
}

/** Without producttypes.xml no name of a product is known. */
void PxDirectoriesCheck::checkProductTypes() const
{
    if (QFileInfo::exists(m_paths.productTypes))
        return;
    const QString inside = QDir(m_paths.productsDirectory).filePath("producttypes.xml");
    m_report.add(PxTag::FileUnreadable, PxPlace{m_paths.productTypes}, "this file does not exist")
        .now("no product is known, and every product file is skipped")
        .hint([&] {
            for (const PxMisplacedFile &file : m_paths.misplacedFiles) {
                if (file.kind == PxFileKind::ProductTypes)
                    return QString("rename \"%1\"").arg(file.path);
            }
            return QFileInfo::exists(inside) ? QString("move \"%1\" there").arg(inside) : QString();
        });
}

/** Names the directory with the files that this one lacks. */
QString PxDirectoriesCheck::hintFor(const QString &directory) const
{
    const QFileInfo info(directory);
    if (info.isSymLink() && !info.exists())
        return "mend the link";
    for (const PxUnreadDirectory &other : m_paths.unreadDirectories) {
        if (other.kind == PxUnreadDirectory::Kind::Misnamed &&
            QFileInfo(other.read).fileName() == info.fileName())
            return QString("rename \"%1\" to \"%2\"").arg(other.path, info.fileName());
    }
    return QString();
}
