#pragma once

#include "check/findings/PxCheckReport.h"

#include <QJsonObject>

/** Findings as JSON, with everything that the text contains. */
class PxFindingsJson
{
public:
    static QJsonObject of(const PxCheckReport &report);
};
