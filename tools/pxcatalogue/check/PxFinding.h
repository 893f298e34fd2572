#pragma once

#include "check/PxCheckTag.h"
#include "check/PxPlace.h"

/** A place where what a file says and what the library does part ways. */
struct PxFinding
{
    const PxCheckTag *tag = nullptr;
    PxSeverity severity = PxSeverity::Error;
    PxPlace place;
    QString message; ///< what the file says
    QString now;     ///< what the library does with it; may be empty
    QString hint;    ///< what to do about it; may be empty
};
