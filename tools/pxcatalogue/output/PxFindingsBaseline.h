#pragma once

#include "check/findings/PxCheckReport.h"
#include "check/findings/PxFindingIdentity.h"
#include "writing/PxProblem.h"

#include <QJsonArray>
#include <QMap>
#include <QString>

#include <optional>

/** The known findings of a catalogue, which a file lists so that reports hide them. */
class PxFindingsBaseline
{
public:
    /** In bytes; enough for about 30 000 findings. Reading more would take seconds. */
    static constexpr qint64 maximumSize = qint64(8) * 1024 * 1024;

    PxFindingsBaseline() = default;
    /** Makes all findings of the report known. */
    explicit PxFindingsBaseline(const PxCheckReport &report);

    /** Reads a regular file; refuses any other. */
    std::optional<PxProblem> read(const QString &path);
    std::optional<PxProblem> write(const QString &path) const;

    /** Reads the contents of such a file. A problem does not name the file. */
    std::optional<PxProblem> readJson(const QByteArray &text);
    /** An array with an object for each. */
    static QJsonArray jsonOf(const QMap<PxFindingIdentity, int> &counts);
    /** The text for readJson(). */
    QByteArray toJson() const;

    /**
     * Removes each known finding from the report as many times as the baseline counts it, and
     * adds those that are gone: only if they would have been found.
     */
    void hide(PxCheckReport *report) const;

private:
    static void addGone(const QMap<PxFindingIdentity, int> &left, PxCheckReport *report);
    std::optional<PxProblem> readFindings(const QJsonArray &findings);

    QMap<PxFindingIdentity, int> m_counts;
};
