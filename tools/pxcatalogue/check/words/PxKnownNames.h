#pragma once

#include <QStringList>

/** All names of a kind, for guessing which one the author meant by an unknown name. */
class PxKnownNames
{
public:
    PxKnownNames() = default;
    explicit PxKnownNames(const QStringList &names);

    bool isEmpty() const { return m_names.isEmpty(); }
    /** Compares exactly, case included. */
    bool contains(const QString &name) const;
    /**
     * The name that was probably meant, as a question to the author. Empty if none is similar, or
     * if the limit for guesses is reached.
     */
    QString hint(const QString &name);

private:
    QStringList m_names;   // sorted
    qint64 m_compared = 0; // pairs of characters
};
