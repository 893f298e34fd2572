#pragma once

#include "check/findings/PxTag.h"

/** How bad a finding is. */
enum class PxSeverity {
    Pedantic, ///< a matter of style
    Info,     ///< surprising but legal
    Warning,  ///< data is dropped or changed without a message
    Error,    ///< a product or theme is lost, ambiguous, or can break a caller
};

/** One kind of finding. Explanations, documentation and tests are made from these rows. */
struct PxCheckTag
{
    PxTag tag;
    const char *name; ///< as users write it
    PxSeverity severity;
    const char *summary;     ///< one line, without a full stop
    const char *explanation; ///< what happens, why, and what to do: sentences, one line
    const char *file;        ///< of the example: a file of the sample catalogue, or a new one
    /** A part of the file that causes the finding, with "»" before its place. */
    const char *bad;
    /** The part of the catalogue's file that `bad` replaces. Empty for a new file. */
    const char *good;
    /** Only found when all files of a catalogue are checked together. */
    bool needsCatalogue = false;
    /** Findings with the same message have one cause, outside their files. */
    bool isOfOneCause = false;
};
