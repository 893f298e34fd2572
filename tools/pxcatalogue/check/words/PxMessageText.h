#pragma once

#include "check/source/PxCheckedFile.h"

/** Pieces that messages are made of. */
class PxMessageText
{
public:
    /** As in "line 5". */
    static QString line(const PxCheckedFile &file, const PxSourceRange &range);
    /** Another place, as it is told in the message for a place in the file `path`. */
    static QString place(const PxPlace &other, const QString &path);
    static QString quoted(const QString &name);
    /** As in "a comment". */
    static QString kind(PxSourceNode::Kind kind);
    /** Each name quoted, and `last` before the last one. */
    static QString quotedList(const QStringList &names,
                              const QString &last = QStringLiteral(" and "));
    /** Cut off where it is too long for a message. */
    static QString shortened(const QString &value);
};
