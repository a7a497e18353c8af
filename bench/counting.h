#ifndef COUNTING_H
#define COUNTING_H

#include <cstddef>

/// How often memory was asked for since the program's start, and how many bytes are still held.
extern size_t allocations;
extern long long liveBytes;

#endif
