#pragma once

#include "check/findings/PxCheckReport.h"
#include "check/findings/PxFindingIdentity.h"

#include <QJsonArray>
#include <QMap>

/** The findings of an old catalogue that are known: a file that lists them hides them. */
class PxFindingsBaseline
{
public:
    /** In bytes, about 30 000 findings: reading more would take seconds. */
    static constexpr qint64 maximumSize = qint64(8) * 1024 * 1024;

    PxFindingsBaseline() = default;
    /** Of all findings of the report. */
    explicit PxFindingsBaseline(const PxCheckReport &report);

    /** Both answer what is wrong, in one line; empty for nothing. Only a regular file is read. */
    QString read(const QString &path);
    QString write(const QString &path) const;

    /** As read(), of what such a file holds; the answer does not name the file. */
    QString readJson(const QByteArray &text);
    /** What readJson() reads. */
    QByteArray toJson() const;

    /** Takes the known findings out of the report, each as often as it is known. */
    void hide(PxCheckReport *report) const;

private:
    QString readFindings(const QJsonArray &findings);

    QMap<PxFindingIdentity, int> m_counts;
};
