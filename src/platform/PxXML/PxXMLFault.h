#pragma once

#include <QString>

/** Why a file is refused, and where; line and column count from 1, 0 is no place. */
struct PxXMLFault
{
    QString message;
    qint64 line = 0;
    qint64 column = 0;
};
