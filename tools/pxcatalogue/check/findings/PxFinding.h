#pragma once

#include "check/findings/PxCheckTag.h"
#include "check/source/PxPlace.h"

#include <QString>

/** A place where the library does something else than the file says. */
struct PxFinding
{
    /** Marks where a message names `related`. No XML file can contain this character. */
    static constexpr QChar relatedMark = QChar(0xffff);

    const PxCheckTag *tag = nullptr;
    PxSeverity severity = PxSeverity::Error;
    PxPlace place;
    QString message; ///< what the file says
    QString now;     ///< what the library does with it; may be empty
    QString hint;    ///< what to do about it; may be empty
    /** The first of the other places that the texts name; its path is empty if there is none. */
    PxPlace related;
    /** Put in place of what is there, this mends it for certain. Null if an author must decide. */
    QString replacement;
    /** At how many other places the same is wrong, of which one repair mends all. */
    int otherPlaces = 0;
    /** How many findings of the same tag and file this one sums up; 0 if it is no summary. */
    int restCount = 0;

    /** Makes this finding the summary of `count` findings. */
    void setRest(int count);
    /** The message, which names the related place instead of its mark. */
    QString text() const;
    /** As how many findings this one counts. */
    int count() const { return restCount > 0 ? restCount : 1; }
};
