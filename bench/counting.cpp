#include "counting.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

size_t allocations = 0;
long long liveBytes = 0;


void* operator new(size_t size) {
    ++allocations;
    void* memory = std::malloc(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    liveBytes += static_cast<long long>(malloc_usable_size(memory));
    return memory;
}


void operator delete(void* memory) noexcept {
    liveBytes -= static_cast<long long>(malloc_usable_size(memory));
    std::free(memory);
}


void operator delete(void* memory, size_t /*size*/) noexcept { operator delete(memory); }
