#pragma once

#include <QStringList>

/** All names of a kind, and which of them somebody meant who wrote another. */
class PxKnownNames
{
public:
    PxKnownNames() = default;
    explicit PxKnownNames(const QStringList &names);

    bool isEmpty() const { return m_names.isEmpty(); }
    /** In exactly these letters. */
    bool contains(const QString &name) const;
    /**
     * Which of them is meant, as a question to the author; empty when none is near, or when names
     * have been guessed too often.
     */
    QString hint(const QString &name);

private:
    QStringList m_names;   // sorted
    qint64 m_compared = 0; // pairs of letters
};
