#pragma once

#include "writing/PxProblem.h"

#include <QByteArray>
#include <QLockFile>
#include <QString>
#include <QStringList>

#include <optional>

/**
 * The folder of a proof. It is written beside its place, as "FOLDER.unfinished", and put there as a
 * whole at the end, so that a run that fails leaves an older proof as it was.
 *
 * What a run that was killed left there is removed by the next one.
 */
class PxProofFolder
{
public:
    /** Nothing is written into `sources`, the directories of the catalogue. */
    PxProofFolder(const QString &path, const QStringList &sources);
    /** Removes what is not finished. */
    ~PxProofFolder();
    Q_DISABLE_COPY(PxProofFolder)

    /**
     * Refuses a folder that is neither empty nor an earlier proof, which is one with the file
     * catalogue.json and with no others than those of a proof; and one in which somebody stands or
     * that belongs to the catalogue.
     */
    std::optional<PxProblem> begin();
    /** Several threads may write. */
    std::optional<PxProblem> write(const QString &name, const QByteArray &contents) const;
    /** Whether this was written in this run. */
    bool has(const QString &name) const;
    std::optional<PxProblem> finish();

private:
    std::optional<PxProblem> problemOfPlace() const;
    std::optional<PxProblem> clearLeftovers() const;

    PxProblem cannot(const QString &why) const;

    const QString m_given; ///< as the user calls it
    const QStringList m_sources;
    QString m_path;
    QString m_unfinished; ///< what is written, until it is finished
    QString m_old;        ///< an earlier proof, until the new one is at its place
    QLockFile m_lock;     ///< so that two runs don't write the same
    bool m_isBegun = false;
};
