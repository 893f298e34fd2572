#pragma once

#include "check/findings/PxCheckTag.h"
#include "check/source/PxPlace.h"

#include <QString>

/** A place where a file and the library disagree: what the file says, and what becomes of it. */
struct PxFinding
{
    /** Stands in a message for `otherPlace`. No XML file can hold this character. */
    static constexpr QChar otherPlaceMark = QChar(0xffff);

    const PxCheckTag *tag = nullptr;
    PxSeverity severity = PxSeverity::Error;
    PxPlace place;
    QString message;    ///< what the file says
    PxPlace otherPlace; ///< another place that the message names
    QString now;        ///< what the library does with it; may be empty
    QString hint;       ///< what to do about it; may be empty
    /** Of a summary: how many findings of its tag and file it counts, the first at its place. */
    int restCount = 0;

    /** Makes it the summary of so many findings. */
    void setRest(int count);
    /** The message with the other place in it. */
    QString text() const;
    /** How many findings it is. */
    int count() const { return restCount > 0 ? restCount : 1; }
};
