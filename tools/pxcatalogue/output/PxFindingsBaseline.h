#pragma once

#include "check/findings/PxCheckReport.h"
#include "check/findings/PxFindingIdentity.h"
#include "writing/PxProblem.h"

#include <QJsonArray>
#include <QMap>

#include <optional>

/** The findings of an old catalogue that are known: a file that lists them hides them. */
class PxFindingsBaseline
{
public:
    /** In bytes, about 30 000 findings: reading more would take seconds. */
    static constexpr qint64 maximumSize = qint64(8) * 1024 * 1024;

    PxFindingsBaseline() = default;
    /** Of all findings of the report. */
    explicit PxFindingsBaseline(const PxCheckReport &report);

    /** Only a regular file is read. */
    std::optional<PxProblem> read(const QString &path);
    std::optional<PxProblem> write(const QString &path) const;

    /** Reads the contents of such a file; the problem does not name the file. */
    std::optional<PxProblem> readJson(const QByteArray &text);
    /** What readJson() reads. */
    QByteArray toJson() const;

    /** Takes the known findings out of the report, each as often as it is known. */
    void hide(PxCheckReport *report) const;

private:
    std::optional<PxProblem> readFindings(const QJsonArray &findings);

    QMap<PxFindingIdentity, int> m_counts;
};
