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
     * Suggests a name for the missing `file`, which a catalogue calls `name`: the same with other
     * slashes or without blanks, the same file name in another folder, the only file that begins
     * so, one beside it with another suffix, or a similar one there. A file that is not found
     * because of its own upper-case letters is named to be renamed. Empty if there is none.
     */
    QString hint(const QString &name, const QFileInfo &file);

private:
    QString elsewhere(const QString &base, const QString &fileName);
    QString nearest(const QString &fileName, const QString &directory);
    QString inUpperCase(const QString &base, const QString &folder, const QString &fileName);
    QStringList usable(const QStringList &names) const;
    QStringList namesIn(const QString &directory);
    QStringList foldersIn(const QString &base);

    Kind m_kind;
    QHash<QString, QStringList> m_names;   // by directory
    QHash<QString, QStringList> m_folders; // by directory; with slashes behind them
    int m_guessCount = 0;
};
