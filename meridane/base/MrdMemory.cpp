#include "meridane/base/MrdMemory.h"

#include "meridane/base/errors/NxMemoryError.h"

#include <cstdlib>
#include <new>

#include <malloc.h>

namespace {

constinit TMrdMemCnt processCounter;

// Blocks have no header, so that plain free can release them; the C library reports their size.
std::int64_t sizeOf(void* pointer)
{
    return static_cast<std::int64_t>(malloc_usable_size(pointer));
}

void count(TMrdMemCnt* counter, std::int64_t blocks, std::int64_t bytes)
{
    if (counter == nullptr)
        return;
    counter->blocks.fetch_add(blocks, std::memory_order_relaxed);
    counter->bytes.fetch_add(bytes, std::memory_order_relaxed);
}

void reportFailure(const char* file, int line, std::size_t size)
{
    if (file == nullptr)
        return;
    try {
        NxMemoryError::post(file, line, size);
    } catch (const std::bad_alloc&) {
        // There was no memory for the message either. The null pointer reports the failure to the caller.
    }
}

} // namespace

constinit TMrdMemCnt* pMrd_memCnt = &processCounter;

void* safeMalloc(const char* file, int line, std::size_t size, TMrdMemCnt* counter)
{
    void* const pointer = std::malloc(size);
    if (pointer == nullptr)
        reportFailure(file, line, size);
    else
        count(counter, 1, sizeOf(pointer));
    return pointer;
}

void safeFree(void* pointer, TMrdMemCnt* counter)
{
    if (pointer == nullptr)
        return;
    count(counter, -1, -sizeOf(pointer));
    std::free(pointer);
}

void* safeRealloc(const char* file, int line, void* pointer, std::size_t size, TMrdMemCnt* counter)
{
    if (pointer == nullptr)
        return safeMalloc(file, line, size, counter);
    if (size == 0) {
        safeFree(pointer, counter);
        return nullptr;
    }
    const std::int64_t former = sizeOf(pointer);
    void* const resized = std::realloc(pointer, size);
    if (resized == nullptr)
        reportFailure(file, line, size);
    else
        count(counter, 0, sizeOf(resized) - former);
    return resized;
}
