#pragma once

#include "writing/PxJsonLines.h"
#include "writing/PxProblem.h"

#include <QByteArray>
#include <QString>

#include <optional>

/** Writes files. */
class PxOutputFile
{
public:
    /**
     * Creates the file, or replaces a regular file as a whole once the new contents are on the
     * disk: if that fails, the old file is unchanged. Symbolic links are followed.
     *
     * A pipe, a character device and the file that is the program's stdout or stderr are written in
     * place. Anything else is refused. The problem also says what the user can do.
     */
    static std::optional<PxProblem> write(const QString &path, const QByteArray &contents);
    static std::optional<PxProblem> write(const QString &path, const PxJsonLines &lines);

    /** Writes to an open file. Returns 0, or the error number of the system. */
    static int write(int descriptor, const QByteArray &contents);
    static int write(int descriptor, const PxJsonLines &lines);
    static QString errorText(int error);
};
