#pragma once

#include "PxProgramRun.h"
#include "PxSampleCopy.h"

/** A copy of the sample, which tests make the current directory: "." is its catalogue. */
class PxCheckedSample : public PxSampleCopy
{
public:
    /** Runs "check" with the words of its options. */
    PxProgramRun check(const QString &options) const;
    /** An error, a warning and an info. */
    void addFindings() const;
};

/** "PATH:LINE:COLUMN SEVERITY TAG" of each finding in the text. */
QStringList findingsOf(const PxProgramRun &text);

// A file, an element in it, and a comment that silences nothing.
inline const QString cup = "products/cup2.xml";
inline const QString size = "<usablesize width=\"2000\" height=\"950\"/>";
inline const QString comment = "<!-- check: allow xml-limit-exceeded for a reason -->";
