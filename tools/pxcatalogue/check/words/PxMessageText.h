#pragma once

#include <QString>
#include <QStringList>

/** Pieces that messages are made of. */
class PxMessageText
{
public:
    static QString quoted(const QString &name);
    /** Quotes each name, and writes `last` before the last one. */
    static QString quotedList(const QStringList &names, const QString &last = " and ");
    /** As in "1 page". */
    static QString pages(int count);
    /** Cuts off a value that is too long for a message. */
    static QString shortened(const QString &value);
};
