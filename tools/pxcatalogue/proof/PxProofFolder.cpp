#include "proof/PxProofFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

constexpr const char *writtenLast = "catalogue.json";

/** Without links, as far as the path exists. */
QString placeOf(const QString &path)
{
    const QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    return info.exists() ? info.canonicalFilePath()
                         : QDir(placeOf(info.path())).filePath(info.fileName());
}

/** Whether the path is the folder or a place in it. Both have no links. */
bool isIn(const QString &path, const QString &folder)
{
    return (path + '/').startsWith(folder + '/');
}

/** Whether nobody has put a file of another kind into the folder. */
bool hasOnlyFilesOfProofs(const QString &path)
{
    static const QRegularExpression ourNames(
        "^(catalogue[.]json|proof[.](css|js)|index[.]html|drawings"
        "|(product|earlier|theme)-[a-z0-9_-]+[.]html"
        "|drawings/(product|earlier|theme)-[a-z0-9_-]+[.](svg|png))$");
    QDirIterator files(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        if (!ourNames.match(files.next().mid(path.size() + 1)).hasMatch())
            return false;
    }
    return true;
}

bool isEmpty(const QString &path)
{
    return QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System |
                              QDir::NoDotAndDotDot);
}

bool isProof(const QString &path)
{
    return QFileInfo::exists(path + '/' + writtenLast) && hasOnlyFilesOfProofs(path);
}

} // namespace

PxProofFolder::PxProofFolder(const QString &path, const QStringList &sources)
    : m_given(path)
    , m_sources(sources)
    , m_path(placeOf(path))
    , m_unfinished(m_path + ".unfinished")
    , m_old(m_path + ".old")
    , m_lock(m_path + ".lock")
{
    m_lock.setStaleLockTime(0); // a run may take long; one that was killed is noticed anyway
}

PxProofFolder::~PxProofFolder()
{
    if (m_isBegun)
        QDir(m_unfinished).removeRecursively();
}

PxProblem PxProofFolder::cannot(const QString &why) const
{
    return {QString("the folder \"%1\" cannot be written: %2").arg(m_given, why)};
}

std::optional<PxProblem> PxProofFolder::begin()
{
    if (const auto problem = problemOfPlace())
        return problem;
    if (!QDir().mkpath(QFileInfo(m_path).path()) || !m_lock.tryLock(0))
        return cannot(m_lock.error() == QLockFile::LockFailedError
                          ? "another run writes it"
                          : "no file can be made beside it");
    if (const auto problem = clearLeftovers())
        return problem;
    m_isBegun = QDir().mkpath(m_unfinished + "/drawings");
    return m_isBegun ? std::nullopt : std::optional(cannot("no folder can be made beside it"));
}

std::optional<PxProblem> PxProofFolder::problemOfPlace() const
{
    const QFileInfo info(m_path);
    if (!info.exists() && info.isSymLink())
        return cannot("it is a link to nothing; name another folder");
    for (const QString &source : m_sources) {
        if (isIn(m_path, placeOf(source)))
            return cannot("it belongs to the catalogue; name another folder");
    }
    if (!info.exists())
        return std::nullopt;
    if (!info.isDir())
        return cannot("it is a file; name another folder");
    if (!isEmpty(m_path) && !isProof(m_path))
        return cannot("it has files and is not an earlier proof; name another folder");
    if (isIn(placeOf("."), m_path))
        return cannot("it is replaced, and this runs in it; run it from another folder");
    return std::nullopt;
}

std::optional<PxProblem> PxProofFolder::clearLeftovers() const
{
    // A run that was killed after it had moved the earlier proof away.
    if (!QFileInfo::exists(m_path) && isProof(m_old) && !QDir().rename(m_old, m_path))
        return cannot(QString("\"%1\" cannot be moved back").arg(m_old));
    for (const QString &leftover : {m_unfinished, m_old}) {
        if (QFileInfo::exists(leftover) &&
            !(hasOnlyFilesOfProofs(leftover) && QDir(leftover).removeRecursively()))
            return cannot(QString("\"%1\" is in the way").arg(leftover));
    }
    return std::nullopt;
}

std::optional<PxProblem> PxProofFolder::write(const QString &name, const QByteArray &contents) const
{
    QFile file(m_unfinished + '/' + name);
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::NewOnly) &&
                           file.write(contents) == contents.size() && file.flush();
    return isWritten ? std::nullopt : std::optional(cannot(name + ": " + file.errorString()));
}

bool PxProofFolder::has(const QString &name) const
{
    return QFileInfo::exists(m_unfinished + '/' + name);
}

std::optional<PxProblem> PxProofFolder::finish()
{
    if (QFileInfo::exists(m_path))
        QFile::setPermissions(m_unfinished, QFile::permissions(m_path));
    if (QFileInfo::exists(m_path) && !QDir().rename(m_path, m_old))
        return cannot("the earlier proof cannot be moved away");
    if (!QDir().rename(m_unfinished, m_path)) {
        QDir().rename(m_old, m_path);
        return cannot("the new one cannot be moved to its place");
    }
    m_isBegun = false;
    QDir(m_old).removeRecursively();
    return std::nullopt;
}
