#pragma once

#include <cstdlib>
#include <new>

// Replaces the program's own allocation, which serves the libraries too, by one that fails on demand. To be
// included by one source file of a program.

namespace FailingMemory {

/// How many allocations of this thread still succeed before one fails; negative for all. The test library has threads
/// too.
inline constinit thread_local long allocationsLeft = -1;
/// How many blocks this thread has more than it gave back.
inline constinit thread_local long blocks = 0;

inline void* allocate(std::size_t size)
{
    if (allocationsLeft == 0) {
        allocationsLeft = -1;
        return nullptr;
    }
    if (allocationsLeft > 0)
        --allocationsLeft;
    void* const memory = std::malloc(size == 0 ? 1 : size);
    blocks += memory == nullptr ? 0 : 1;
    return memory;
}

inline void release(void* memory)
{
    blocks -= memory == nullptr ? 0 : 1;
    std::free(memory);
}

} // namespace FailingMemory

void* operator new(std::size_t size)
{
    if (void* const memory = FailingMemory::allocate(size))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept
{
    FailingMemory::release(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    FailingMemory::release(memory);
}
