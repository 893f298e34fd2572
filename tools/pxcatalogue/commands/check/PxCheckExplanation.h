#pragma once

#include "check/findings/PxCheckTag.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

/** Explains the tags of findings. */
class PxCheckExplanation
{
public:
    /** One tag, with its example. */
    static QString of(const PxCheckTag &tag);
    /** A line for each tag. */
    static QString table();
    /** All tags with their examples: the contents of docs/checks.md. */
    static QString markdown();
    static QJsonObject json(const QVector<const PxCheckTag *> &tags);
};
