#pragma once

#include "check/findings/PxCheckReport.h"
#include "check/findings/PxFindingIdentity.h"
#include "writing/PxProblem.h"

#include <QJsonArray>
#include <QMap>
#include <QString>

#include <optional>

/** The known findings of a catalogue: a file that lists them, so that they are hidden. */
class PxFindingsBaseline
{
public:
    /** In bytes, about 30 000 findings: reading more would take seconds. */
    static constexpr qint64 maximumSize = qint64(8) * 1024 * 1024;

    PxFindingsBaseline() = default;
    /** All findings of the report are known. */
    explicit PxFindingsBaseline(const PxCheckReport &report);

    /** Only a regular file is read. */
    std::optional<PxProblem> read(const QString &path);
    std::optional<PxProblem> write(const QString &path) const;

    /** Reads the contents of such a file; the problem does not name the file. */
    std::optional<PxProblem> readJson(const QByteArray &text);
    /** The text for readJson(). */
    QByteArray toJson() const;

    /** Removes the known findings from the report, each as often as it is known. */
    void hide(PxCheckReport *report) const;

private:
    std::optional<PxProblem> readFindings(const QJsonArray &findings);

    QMap<PxFindingIdentity, int> m_counts;
};
