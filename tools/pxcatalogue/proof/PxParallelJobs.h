#pragma once

#include "writing/PxProblem.h"

#include <functional>
#include <optional>
#include <vector>

class PxProgress;

/**
 * Work that several threads share: with the caller's as many as the machine has cores, or as
 * `PX_THREADS` in the environment says if that is a number above 0; but at most eight.
 */
class PxParallelJobs
{
public:
    using Job = std::function<std::optional<PxProblem>()>;

    /**
     * Does all jobs, which do not depend on each other, and returns the problem of the first one
     * that has one. Jobs that have not begun by then are left out. The progress may be null.
     */
    static std::optional<PxProblem> run(const std::vector<Job> &jobs,
                                        PxProgress *progress = nullptr);
};
