#pragma once

#include <QFileInfo>
#include <QHash>
#include <QStringList>

/** Guesses which image was meant by the name of one that is not there. */
class PxImageNames
{
public:
    enum class Kind {
        Any,
        Lower, ///< without upper-case letters, because others are not found
    };

    explicit PxImageNames(Kind kind) : m_kind(kind) {}

    /** Another one beside the missing file, with the directory that `name` has. */
    QString hint(const QString &name, const QFileInfo &file);

private:
    QStringList namesIn(const QString &directory);

    Kind m_kind;
    QHash<QString, QStringList> m_names; // by directory
    int m_guessCount = 0;
};
