#pragma once

/** How the program ends. */
enum class PxExitStatus {
    Done = 0,
    /** The answer is "no"; of "check": something was found that is as bad as the user fears. */
    AnswerIsNo = 1,
    /** Wrong usage, or something that cannot be read or written. */
    CannotRun = 2,
    InternalFault = 3,
};
