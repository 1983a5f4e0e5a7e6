#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

/// \file
/// Requests for memory that are counted and whose failure is reported.

/// The memory that an accounting allocator has allocated and not released. Both counts are signed, since a block may be
/// allocated with one counter and released with another, or allocated by plain `malloc` and released here.
struct TMrdMemCnt {
    /// The number of blocks.
    std::atomic<std::int64_t> blocks = 0;
    /// Their sizes in bytes, as the allocator rounded them up.
    std::atomic<std::int64_t> bytes = 0;
};

/// The counter of the process. Never null; usable from the first static initialiser to the last destructor.
extern TMrdMemCnt* pMrd_memCnt;

// The three operations are interchangeable with malloc, free and realloc: a block of one family may be released by the
// other. Each may be called on any thread. `file` and `line` are the source position of the call; `counter` may be
// null, then nothing is counted.

/// Allocates `size` bytes, aligned for every fundamental type. Size 0 gives a block of its own too.
/// Returns null when there is no memory; the failure is then posted as an `NxMemoryError`, but only if `file` is given:
/// the global operators, which give none, must not allocate for a message.
[[nodiscard]] void* safeMalloc(const char* file, int line, std::size_t size, TMrdMemCnt* counter);

/// Releases a block; a null pointer is ignored.
void safeFree(void* pointer, TMrdMemCnt* counter);

/// Resizes a block and keeps its content up to the smaller size. A null pointer allocates; size 0 releases the block
/// and returns null. On failure returns null, leaves block and counter as they are, and reports as `safeMalloc` does.
[[nodiscard]] void* safeRealloc(const char* file, int line, void* pointer, std::size_t size, TMrdMemCnt* counter);
