#include "PxAllocations.h"

#include <malloc.h>

#include <atomic>

static std::atomic<std::size_t> ourCount{0};

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);

void *malloc(std::size_t size)
{
    ourCount.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    ourCount.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(count, size);
}

void *realloc(void *memory, std::size_t size)
{
    ourCount.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(memory, size);
}
}

std::size_t PxAllocations::count()
{
    return ourCount.load(std::memory_order_relaxed);
}

std::size_t PxAllocations::bytesInUse()
{
    return mallinfo2().uordblks;
}
