#pragma once

#include <QByteArray>
#include <QString>

/** Writes the files of a program. What cannot be written harms nothing that was there before. */
class PxOutputFile
{
public:
    /**
     * Makes the file, or replaces a regular one as a whole, once all of it is on the disk; of a
     * link its target.
     *
     * A pipe or a character device is written as it is, and so is the file that is the program's
     * stdout or stderr. Nothing else is written. Answers what is wrong, and what helps, in one
     * line; empty for nothing.
     */
    static QString write(const QString &path, const QByteArray &contents);

    /** To an open file. Answers 0, or the error number of the system. */
    static int write(int descriptor, const QByteArray &contents);
    static QString errorText(int error);
};
