#pragma once

#include "check/findings/PxCheckReport.h"

#include <QJsonObject>

/** Findings for programs, with all that the text tells. */
class PxFindingsJson
{
public:
    explicit PxFindingsJson(const PxCheckReport &report) : m_report(report) {}

    QJsonObject json() const;

private:
    const PxCheckReport &m_report;
};
