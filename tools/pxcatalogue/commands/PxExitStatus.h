#pragma once

/** How the program ends. */
enum class PxExitStatus {
    Done = 0,
    /** The answer is "no"; for "check": a finding is at least as severe as --fail-on. */
    AnswerIsNo = 1,
    /** The usage is wrong, or something cannot be read or written. */
    CannotRun = 2,
    InternalFault = 3,
};
