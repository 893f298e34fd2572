#pragma once

#include <functional>

/**
 * One line of the table: a measured operation and the one to which it is compared.
 *
 * Each function performs its operation once per call, and repeats it if it is short. Absolute times
 * mean little on shared machines, so both run side by side and only the ratio of their times
 * counts.
 */
struct PxRatio
{
    const char *name;
    double must; ///< the largest allowed ratio; 0 for none
    double aim;  ///< the ratio that would be best
    std::function<void()> measured;
    std::function<void()> measure;
};
