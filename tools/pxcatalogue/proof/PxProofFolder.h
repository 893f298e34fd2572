#pragma once

#include "writing/PxProblem.h"

#include <QByteArray>
#include <QString>

#include <optional>

/**
 * The folder of a proof. It is written beside its place and put there as a whole at the end, so
 * that a run that fails leaves an older proof as it was.
 */
class PxProofFolder
{
public:
    explicit PxProofFolder(const QString &path);
    /** Removes what is not finished. */
    ~PxProofFolder();
    Q_DISABLE_COPY(PxProofFolder)

    /** Refuses a folder that is neither empty nor an earlier proof. */
    std::optional<PxProblem> begin();
    /** Several threads may write. */
    std::optional<PxProblem> write(const QString &name, const QByteArray &contents) const;
    std::optional<PxProblem> finish();

private:
    QString m_path;
    QString m_unfinished; ///< empty before begin() and after finish()
};
