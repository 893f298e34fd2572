#pragma once

#include <QFileInfo>
#include <QHash>
#include <QStringList>

/** Guesses which image the author meant by the name of a missing one. */
class PxImageNames
{
public:
    enum class Kind {
        Any,
        Lower, ///< names without upper-case letters, the only ones that the library finds
    };

    explicit PxImageNames(Kind kind) : m_kind(kind) {}

    /**
     * Suggests a name from the directory of the missing `file`, with the same directory as `name`;
     * empty if none is similar.
     */
    QString hint(const QString &name, const QFileInfo &file);

private:
    QStringList namesIn(const QString &directory);

    Kind m_kind;
    QHash<QString, QStringList> m_names; // by directory
    int m_guessCount = 0;
};
