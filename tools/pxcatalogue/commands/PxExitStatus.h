#pragma once

/** How the program ends. */
enum class PxExitStatus {
    Done = 0,
    /** The answer is "no"; for "check": a finding is as bad as --fail-on says. */
    AnswerIsNo = 1,
    /** Wrong usage, or something that cannot be read or written. */
    CannotRun = 2,
    InternalFault = 3,
};
