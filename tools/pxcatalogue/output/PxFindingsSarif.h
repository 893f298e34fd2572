#pragma once

#include "check/findings/PxCheckReport.h"

#include <QJsonObject>

/** Findings as SARIF 2.1.0, which build servers and editors show beside the lines. */
class PxFindingsSarif
{
public:
    explicit PxFindingsSarif(const PxCheckReport &report) : m_report(report) {}

    QJsonObject json() const;

private:
    QJsonObject result(const PxFinding &finding, const QString &fingerprint) const;
    QJsonObject artifact(const QString &path) const;

    const PxCheckReport &m_report;
};
