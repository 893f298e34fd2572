#pragma once

#include "diff/PxDiff.h"

#include <QVector>

/** Changes that follow from others: one change of a file is named once, where it was made. */
class PxExplainedChanges
{
public:
    /** The changes of one product that do not follow from others of them. */
    static QVector<PxChange> removedFrom(const QVector<PxChange> &changes);
    /** Whether a value depends on the page count. */
    static bool dependsOnPageCount(const PxDiffKey &key);
};
