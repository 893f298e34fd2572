#pragma once

#include <QFileInfo>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

/** The sample catalogue with one file that a fuzzer writes; logs nothing. */
class PxFuzzedDirectory
{
public:
    /** The first use decides the name of the file, in a directory of its own. */
    static PxFuzzedDirectory &withFile(const char *name);

    /** Replaces the file. */
    QFileInfo write(const std::uint8_t *data, std::size_t size) const;
    QString path() const { return m_directory.path(); }

private:
    explicit PxFuzzedDirectory(const char *name);

    QTemporaryDir m_directory;
    QString m_file;
};
