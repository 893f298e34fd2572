#pragma once

#include "check/findings/PxCheckTag.h"
#include "check/source/PxPlace.h"

#include <QString>

/** A place where the library does something else than the file says. */
struct PxFinding
{
    /** Marks where a message names `otherPlace`. No XML file can contain this character. */
    static constexpr QChar otherPlaceMark = QChar(0xffff);

    const PxCheckTag *tag = nullptr;
    PxSeverity severity = PxSeverity::Error;
    PxPlace place;
    QString message;    ///< what the file says
    PxPlace otherPlace; ///< another place that the message names
    QString now;        ///< what the library does with it; may be empty
    QString hint;       ///< what to do about it; may be empty
    /** How many findings of the same tag and file this one sums up; 0 if it is no summary. */
    int restCount = 0;

    /** Makes this finding the summary of `count` findings. */
    void setRest(int count);
    /** The message, which names the other place instead of its mark. */
    QString text() const;
    /** As how many findings this one counts. */
    int count() const { return restCount > 0 ? restCount : 1; }
};
