#pragma once

#include "writing/PxProblem.h"

#include <QByteArray>
#include <QString>

#include <optional>

/** Writes the files of a program. What cannot be written harms nothing that was there before. */
class PxOutputFile
{
public:
    /**
     * Makes the file, or replaces a regular one as a whole, once all of it is on the disk; of a
     * link its target.
     *
     * A pipe or a character device is written as it is, and so is the file that is the program's
     * stdout or stderr. Nothing else is written. A problem comes with what helps.
     */
    static std::optional<PxProblem> write(const QString &path, const QByteArray &contents);

    /** Writes to an open file. Returns 0, or the error number of the system. */
    static int write(int descriptor, const QByteArray &contents);
    static QString errorText(int error);
};
