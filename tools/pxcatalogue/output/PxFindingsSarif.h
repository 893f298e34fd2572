#pragma once

#include "check/findings/PxCheckReport.h"

#include <QJsonObject>

/** Findings as SARIF 2.1.0, which build servers and editors show beside the lines. */
class PxFindingsSarif
{
public:
    static QJsonObject of(const PxCheckReport &report);
};
