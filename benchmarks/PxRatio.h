#pragma once

#include <functional>

/**
 * One line of the table: a measured piece of work beside its measure.
 *
 * Both do their work once a call; a short one repeats it inside. Absolute times mean little on
 * shared machines, so they run side by side and only their ratio counts.
 */
struct PxRatio
{
    const char *name;
    double must; ///< the ratio that must be reached; 0 for none
    double aim;  ///< the ratio that would be best
    std::function<void()> measured;
    std::function<void()> measure;
};
