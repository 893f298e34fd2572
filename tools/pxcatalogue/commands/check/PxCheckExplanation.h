#pragma once

#include "check/findings/PxCheckTag.h"

#include <QString>

/** What the tags of findings mean: one of them, or all. */
class PxCheckExplanation
{
public:
    /** All that is known about one. */
    static QString of(const PxCheckTag &tag);
    /** A line for each. */
    static QString table();
    /** All that is known about all, as the documentation has it. */
    static QString markdown();
};
