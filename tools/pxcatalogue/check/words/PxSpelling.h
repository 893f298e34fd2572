#pragma once

#include <QStringList>

/** Guesses what the author meant by a misspelt name. Case does not matter. */
class PxSpelling
{
public:
    /** The most similar candidate; empty if none is similar. */
    static QString nearest(const QString &word, const QStringList &candidates);
    /** The same as a question to the author; empty if there is none. */
    static QString hint(const QString &word, const QStringList &candidates);
    /** All words, for an author who may not know them; empty if there are too many. */
    static QString oneOf(const QStringList &words);
    /** The question; if none of the candidates is similar, all of them. */
    static QString hintOrAll(const QString &word, const QStringList &candidates);
    /** Names between semicolons, between commas and without blanks at their edges. */
    static QString withCommas(const QString &names);
    /** Names with semicolons between them, as the list that is meant. */
    static QString separated(const QString &names);
    /**
     * At most three candidates that have the word as a part; if none has, those that are similar
     * to the word or have a part that is. The most similar first.
     */
    static QStringList nearestThree(const QString &word, const QStringList &candidates);
    /** Whether the name is similar to the word. */
    static bool isNear(const QString &word, const QString &name);
    /**
     * Which character of the word looks like one of the name, but is of another script; begins with
     * a blank. Empty if none does.
     */
    static QString lookalike(const QString &word, const QString &name);
    /** The question for a name that is known to be similar. */
    static QString didYouMean(const QString &name);
    /** The question for several names; empty for none. */
    static QString didYouMean(const QStringList &names);
    /** The words of a list with separators other than commas. A very long list counts as one word.
     */
    static QStringList words(const QString &list);
};
