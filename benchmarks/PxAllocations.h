#pragma once

#include <cstddef>

/** Counts what this process allocates, by standing before the allocator of the C library. */
class PxAllocations
{
public:
    static std::size_t count();
    /** Bytes in use, as the allocator accounts for them. */
    static std::size_t bytesInUse();
};
