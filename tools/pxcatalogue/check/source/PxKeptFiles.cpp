#include "check/source/PxKeptFiles.h"

#include <QFileInfo>

void PxKeptFiles::keep(const File &file)
{
    const qint64 size = m_size + file->source().text().size();
    if (size > maximumSize)
        return;
    m_size = size;
    m_files.insert(QFileInfo(file->path()).absoluteFilePath(), file);
}

PxKeptFiles::File PxKeptFiles::file(const QString &path) const
{
    const auto kept = m_files.constFind(QFileInfo(path).absoluteFilePath());
    return kept != m_files.constEnd() ? *kept : std::make_shared<const PxCheckedFile>(path);
}
