#include "check/catalogue/PxDirectoriesCheck.h"

#include <QFileInfo>

namespace {

/** What is wrong with a directory without files to read. */
QString emptiness(const QString &directory, const char *kind)
{
    return QFileInfo(directory).isDir() ? QString("there is no %1 in this directory").arg(kind)
                                        : "this directory does not exist";
}

} // namespace

void PxDirectoriesCheck::run() const
{
    if (m_paths.isCatalogue) {
        checkProducts();
        checkThemes();
    }
    checkUndecodableNames();
    checkDeadLinks();
    for (const QString &path : m_paths.strays)
        checkStray(path);
    for (const PxUnreadDirectory &directory : m_paths.unreadDirectories)
        checkUnread(directory);
}

void PxDirectoriesCheck::checkProducts() const
{
    if (m_paths.products.isEmpty() && m_paths.deadLinks.isEmpty())
        m_report
            .add(PxTag::ProductsNone, PxPlace{m_paths.productsDirectory},
                 emptiness(m_paths.productsDirectory, "product file"))
            .now("no product is offered")
            .hint("put the product files there");
}

void PxDirectoriesCheck::checkThemes() const
{
    if (!m_paths.themes.isEmpty())
        return;
    const QString message = emptiness(m_paths.themesDirectory, "theme file");
    const PxPlace place{m_paths.themesDirectory};
    if (m_namedTheme.path.isEmpty())
        m_report.add(PxTag::ThemesNone, place, message).now("no theme is offered");
    else
        m_report
            .add(PxTag::ThemesLost, place, message + ", but a product names a theme in %1",
                 m_namedTheme)
            .now("no theme is offered, and nothing finds the templates of that theme")
            .hint("put the theme files there");
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
    const bool isInside = directory.readInstead.isEmpty();
    m_report
        .add(PxTag::FileNotRead, PxPlace{directory.path},
             isInside ? "XML files in a directory below the one that is read: %1"
                      : "XML files in a second directory of products: %1",
             directory.fileCount)
        .now(isInside ? "the library reads no directory below" : "only \"%1\" is read",
             directory.readInstead)
        .hint(isInside ? "move them one directory up, or out of the catalogue"
                       : "put all products into one directory");
}
