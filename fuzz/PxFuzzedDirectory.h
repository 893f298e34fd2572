#pragma once

#include <QFileInfo>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

/** A copy of the sample catalogue in which a fuzzer replaces one file. Nothing is logged. */
class PxFuzzedDirectory
{
public:
    /** The directory whose replaced file has this name. Only the name in the first call counts. */
    static PxFuzzedDirectory &withFile(const char *name);

    /** Replaces the contents of the file. */
    QFileInfo write(const std::uint8_t *data, std::size_t size) const;
    QString path() const { return m_directory.path(); }

private:
    explicit PxFuzzedDirectory(const char *name);

    QTemporaryDir m_directory;
    QString m_file;
};
