#pragma once

#include <QStringList>

/** Guesses what somebody meant who misspelt a name. */
class PxSpelling
{
public:
    /** The one candidate that is nearest and near; empty when none is. Case does not count. */
    static QString nearest(const QString &word, const QStringList &candidates);
    /** The same as a question to the author; empty when none is near. */
    static QString hint(const QString &word, const QStringList &candidates);
    /**
     * The three candidates at most that are nearest to the word, or have a part that is near to it;
     * the best first. Case does not count.
     */
    static QStringList nearestThree(const QString &word, const QStringList &candidates);
    /** Whether the name is near to the word. */
    static bool isNear(const QString &word, const QString &name);
    /** The question for a name that is known to be near. */
    static QString didYouMean(const QString &name);
    /** Those of a list that uses another separator than the comma; a very long one is a word. */
    static QStringList words(const QString &list);
};
