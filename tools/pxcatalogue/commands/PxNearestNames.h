#pragma once

#include <QStringList>

/** Finds the names that somebody may have meant who mistyped one or wrote a part of it. */
class PxNearestNames
{
public:
    explicit PxNearestNames(const QStringList &names);

    /** The best first, three at most; none when every name is too different. Case does not count.
     */
    QStringList find(const QString &text) const;

private:
    QStringList m_names;
};
