#include "proof/PxProofFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

/** A folder with this file is an earlier proof. */
constexpr const char *mark = "proof.css";

PxProblem cannot(const QString &path, const QString &why)
{
    return {QString("the folder \"%1\" cannot be written: %2").arg(path, why)};
}

} // namespace

PxProofFolder::PxProofFolder(const QString &path)
    : m_path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
{}

PxProofFolder::~PxProofFolder()
{
    if (!m_unfinished.isEmpty())
        QDir(m_unfinished).removeRecursively();
}

std::optional<PxProblem> PxProofFolder::begin()
{
    const QFileInfo info(m_path);
    const QDir folder(m_path);
    if (info.exists() && !info.isDir())
        return cannot(m_path, "it is a file");
    const bool isEmpty =
        folder.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    if (info.exists() && !isEmpty && !(folder.exists(mark) && folder.exists("catalogue.json")))
        return cannot(m_path, "it has files and is not an earlier proof; name another folder");
    const QString unfinished =
        QString("%1.unfinished-%2").arg(m_path).arg(QCoreApplication::applicationPid());
    if (!QDir().mkpath(unfinished) || !QDir(unfinished).mkdir("drawings"))
        return cannot(m_path, "no folder can be made beside it");
    m_unfinished = unfinished;
    return std::nullopt;
}

std::optional<PxProblem> PxProofFolder::write(const QString &name, const QByteArray &contents) const
{
    QFile file(m_unfinished + '/' + name);
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::NewOnly) &&
                           file.write(contents) == contents.size() && file.flush();
    return isWritten ? std::nullopt
                     : std::optional(cannot(m_path, name + ": " + file.errorString()));
}

std::optional<PxProblem> PxProofFolder::finish()
{
    const QString old = m_unfinished + ".old";
    if (QFileInfo::exists(m_path) && !QDir().rename(m_path, old))
        return cannot(m_path, "the earlier proof cannot be moved away");
    if (!QDir().rename(m_unfinished, m_path)) {
        QDir().rename(old, m_path);
        return cannot(m_path, "the new one cannot be moved to its place");
    }
    m_unfinished.clear();
    QDir(old).removeRecursively();
    return std::nullopt;
}
