#include "commands/check/PxUnreadFiles.h"

#include "check/PxCheckLimits.h"
#include "check/source/PxFileHead.h"
#include "check/words/PxSpelling.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace {

/** Whether the name is a slip; "themes-2" is not, as somebody chose it beside "themes". */
bool isSlip(const QString &name, const QString &meant)
{
    const bool isLonger = name.size() > meant.size() && name.startsWith(meant, Qt::CaseInsensitive);
    return name != meant && !isLonger && PxSpelling::isNear(name, meant);
}

bool isXml(const QString &name)
{
    return name.endsWith(".xml", Qt::CaseInsensitive);
}

} // namespace

PxUnreadFiles::PxUnreadFiles(const QStringList &read, PxCheckPaths &paths,
                             QHash<QString, QString> &names)
    : m_paths(paths)
    , m_names(names)
{
    for (const QString &directory : read)
        m_read.append(QFileInfo(directory).canonicalFilePath() + '/');
}

/** Whether the directory is read, or has one that is. */
bool PxUnreadFiles::isRead(const QFileInfo &directory) const
{
    const QString canonical = directory.canonicalFilePath() + '/';
    return std::any_of(m_read.begin(), m_read.end(),
                       [&](const QString &other) { return other.startsWith(canonical); });
}

void PxUnreadFiles::findBeside(const QString &resources)
{
    if (m_read.contains(QFileInfo(resources).canonicalFilePath() + '/'))
        return; // its files are those of a directory that is read
    QDirIterator entries(resources, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    for (int i = 0; i < PxCheckLimits::filesBelow && entries.hasNext(); ++i) {
        entries.next();
        const QString name = entries.fileName();
        const QFileInfo entry(QDir(resources).filePath(name));
        if (entry.isDir() && !entry.isSymLink() && !isRead(entry))
            findMisnamed(entry);
        else if (entry.isFile() && isXml(name) && name != "producttypes.xml" &&
                 name != "frames.xml" && m_headCount++ < PxCheckLimits::heads) {
            if (const auto kind = PxFileHead(entry.filePath()).kind()) {
                m_paths.misplacedFiles.append({entry.filePath(), *kind});
                m_names.insert(entry.filePath(), name);
            }
        }
    }
}

void PxUnreadFiles::findMisnamed(const QFileInfo &directory)
{
    for (const char *name : {"products", "themes", "defaults"}) {
        if (!isSlip(directory.fileName(), name))
            continue;
        bool isOfCatalogue = false;
        QDirIterator files(directory.filePath(), QDir::Files);
        while (!isOfCatalogue && files.hasNext() && m_headCount++ < PxCheckLimits::heads)
            isOfCatalogue = isXml(files.next()) && PxFileHead(files.filePath()).kind();
        if (isOfCatalogue)
            add(PxUnreadDirectory::Kind::Misnamed, directory.filePath(), directory.fileName(),
                directory.dir().filePath(name));
    }
}

void PxUnreadFiles::findInside(const QString &directory, const QString &name)
{
    const QFileInfoList below =
        QDir(directory).entryInfoList(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : below) {
        if (isRead(entry))
            continue;
        using Kind = PxUnreadDirectory::Kind;
        const bool isOfOlder = name == "products" && isSlip(entry.fileName(), "legacy");
        add(isOfOlder ? Kind::Misnamed : Kind::Inside, entry.filePath(),
            name + '/' + entry.fileName(), isOfOlder ? entry.dir().filePath("legacy") : QString());
    }
}

void PxUnreadFiles::findHidden(const QStringList &resources, const QString &name,
                               const QString &read)
{
    const auto canonical = [&](const QString &directory) {
        return QFileInfo(QDir(directory).filePath(name)).canonicalFilePath();
    };
    const QString used = QFileInfo(read).canonicalFilePath();
    // If none of them is used, the one that is was named by itself.
    if (used.isEmpty() || std::none_of(resources.begin(), resources.end(),
                                       [&](const auto &d) { return canonical(d) == used; }))
        return;
    for (const QString &directory : resources) {
        if (canonical(directory) != used)
            add(PxUnreadDirectory::Kind::Hidden, QDir(directory).filePath(name), name, read);
    }
}

void PxUnreadFiles::add(PxUnreadDirectory::Kind kind, const QString &path, const QString &name,
                        const QString &read)
{
    int count = 0;
    QDirIterator files(path, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    for (int i = 0; i < PxCheckLimits::filesBelow && files.hasNext(); ++i)
        count += isXml(files.next()) ? 1 : 0;
    if (count == 0)
        return;
    m_paths.unreadDirectories.append({kind, path, count, read});
    m_names.insert(path, name);
}
