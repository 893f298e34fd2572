#pragma once

#include <QString>
#include <QStringList>

/** Pieces that messages are made of. */
class PxMessageText
{
public:
    static QString quoted(const QString &name);
    /** Each name quoted, and `last` before the last one. */
    static QString quotedList(const QStringList &names, const QString &last = " and ");
    /** Cut off where it is too long for a message. */
    static QString shortened(const QString &value);
};
