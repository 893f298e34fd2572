#pragma once

#include <QJsonObject>

struct PxDiff;

/** Writes how two catalogues differ as JSON. */
class PxDiffJson
{
public:
    static QJsonObject of(const PxDiff &diff);
};
