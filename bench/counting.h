#ifndef COUNTING_H
#define COUNTING_H

#include <cstddef>

/// How often memory was allocated since the program's start, and how many bytes are still held.
extern size_t allocations;
extern long long liveBytes;

#endif
