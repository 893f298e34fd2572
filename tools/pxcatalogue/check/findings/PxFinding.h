#pragma once

#include "check/findings/PxCheckTag.h"
#include "check/source/PxPlace.h"

/** A place where what a file says and what the library does part ways. */
struct PxFinding
{
    const PxCheckTag *tag = nullptr;
    PxSeverity severity = PxSeverity::Error;
    PxPlace place;
    QString message; ///< what the file says
    QString now;     ///< what the library does with it; may be empty
    QString hint;    ///< what to do about it; may be empty
    /** How many others of its tag and file it stands for, the first of them at its place; or 0. */
    int restCount = 0;

    /** How many findings it is. */
    int count() const { return restCount > 0 ? restCount : 1; }
    /** Makes it stand for so many, which are not told one by one. */
    void setRest(int count)
    {
        restCount = count;
        message = QStringLiteral("and %1 more in this file").arg(count);
    }
};
