#pragma once

#include <cstddef>

/** Counts the allocations of this process, by replacing the functions of the C library. */
class PxAllocations
{
public:
    static std::size_t count();
    /** The number of bytes in use, as the allocator counts them. */
    static std::size_t bytesInUse();
};
