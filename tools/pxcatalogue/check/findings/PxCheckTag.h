#pragma once

#include "check/findings/PxTag.h"

/** How bad a finding is. */
enum class PxSeverity {
    Pedantic, ///< a matter of style
    Info,     ///< surprising but legal
    Warning,  ///< data is dropped or changed in silence
    Error,    ///< a product or theme is lost, ambiguous, or can break a caller
};

/** One kind of finding: what the explanation, the documentation and the tests are made from. */
struct PxCheckTag
{
    PxTag tag;
    const char *name; ///< as users write it
    PxSeverity severity;
    const char *summary;     ///< one line, without a full stop
    const char *explanation; ///< what happens, why, and what to do: sentences, one line
    const char *file;        ///< of the example: a file of the small catalogue, or one beside them
    /** What stands there when the finding is due, "»" before the place of the finding. */
    const char *bad;
    /** What stands there when all is well. Empty when there is no such file in the catalogue. */
    const char *good;
    /** Found only when all files of a catalogue are checked together. */
    bool needsCatalogue = false;
};
