// See CountedHeap.h. Forms of new and delete that are not here end in these.
#include "tests/game/CountedHeap.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

void* operator new(std::size_t size) {
    void* block = std::malloc(size);
    if (block == nullptr) throw std::bad_alloc();
    ++prismfall::heap::allocations;
    prismfall::heap::liveBytes += malloc_usable_size(block);
    return block;
}

void operator delete(void* block) noexcept {
    if (block != nullptr) prismfall::heap::liveBytes -= malloc_usable_size(block);
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }
