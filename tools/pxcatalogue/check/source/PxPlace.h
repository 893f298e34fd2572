#pragma once

#include <QString>

/** A part of a file. Lines and columns count characters from 1; the end is behind the last one. */
struct PxPlace
{
    QString path;
    int line = 1;
    int column = 1;
    int endLine = 1;
    int endColumn = 1;

    /** For example "line 5", or with the path "a.xml:5" if the place is not in `file`. */
    QString seenFrom(const QString &file) const
    {
        return path == file ? QString("line %1").arg(line)
                            : QString("%1:%2").arg(path, QString::number(line));
    }
};
