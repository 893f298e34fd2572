#pragma once

#include "check/source/PxCheckedFile.h"

#include <QHash>

#include <memory>

/**
 * Files that were read for the checks, for those who read them again later: as many as the memory
 * shall hold. Several threads may ask it for files at once.
 */
class PxKeptFiles
{
public:
    using File = std::shared_ptr<const PxCheckedFile>;

    /** Keeps the file as long as this lives, if there is room for it. */
    void keep(const File &file);
    /** The file, which is read unless it was kept. */
    File file(const QString &path) const;
    /** All that were kept, by their absolute paths. */
    const QHash<QString, File> &all() const { return m_files; }

private:
    /** Characters of all files together. In memory a file takes about 30 bytes for each. */
    static constexpr qint64 maximumSize = 5000000;

    QHash<QString, File> m_files;
    qint64 m_size = 0;
};
