#pragma once

#include "writing/PxProblem.h"

#include <QByteArray>
#include <QString>

#include <optional>

/** Writes files. If that fails, a file that existed before is unchanged. */
class PxOutputFile
{
public:
    /**
     * Creates the file, or replaces a regular one as a whole once the new one is on the disk. A
     * link leads to its target.
     *
     * A pipe, a character device and the file that is the program's stdout or stderr are written in
     * place. Anything else is refused. A problem says what helps, too.
     */
    static std::optional<PxProblem> write(const QString &path, const QByteArray &contents);

    /** Writes to an open file. Returns 0, or the error number of the system. */
    static int write(int descriptor, const QByteArray &contents);
    static QString errorText(int error);
};
