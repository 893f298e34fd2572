#pragma once

#include <QJsonValue>
#include <QString>

struct PxChange;

/** Says in words what changed. */
class PxDiffWords
{
public:
    /** A value of several parts, such as the places of a surrounding: "fullcover left". */
    static QString ofParts(const QJsonValue &value);
    /** For example "0.2 mm wider"; empty if there are no words for it. */
    static QString ofDifference(const PxChange &change);
    /**
     * What became of a value: the difference, then the values before and after.
     *
     * For changes from `first` to `last`, which have the same difference.
     */
    static QString of(const PxChange &first, const PxChange &last);
};
