#pragma once

#include <QString>

/** A part of a file. Lines and columns count characters from 1; the end is the place behind it. */
struct PxPlace
{
    QString path;
    int line = 1;
    int column = 1;
    int endLine = 1;
    int endColumn = 1;
};
