#pragma once

#include <functional>

/**
 * Reading many files in several threads, with the result of reading them one after the other.
 *
 * The threads work only while forEach() runs. They are, with the caller's, as many as the machine
 * has cores, or as `PX_THREADS` in the environment says if that is a number above 0; but at most
 * eight, and one for each sixteen files. With `PX_THREADS=1` all is read in the caller's thread.
 *
 * The messages of the library are written in the caller's thread only, in the order of the files.
 * The caller may hold locks of its own, and no application has to exist.
 */
namespace PxParallelReading {

/**
 * Calls `read` for each number below `count`, and returns when all calls have returned.
 *
 * A call reads one file, from its bytes to the result, and frees what is in between: memory that
 * one thread allocates and another one frees is slow. What it throws, the caller gets; files that
 * are not begun by then are not read.
 */
void forEach(int count, const std::function<void(int)> &read);

} // namespace PxParallelReading
