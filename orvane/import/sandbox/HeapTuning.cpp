#include "orvane/import/sandbox/HeapTuning.h"

#include "orvane/import/sandbox/Sanitizer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include <malloc.h>
#include <sys/mman.h>

namespace orvane {

void tuneHeap(const ProcessLimits& limits)
{
    constexpr std::size_t enough = 1024; // MiB
    // A sanitizer has a heap of its own.
    if (isSanitized() || (limits.memoryMiB != 0 && limits.memoryMiB < enough))
        return;
    constexpr int largestOwnBlock = 32 << 20; // more is always handed back
    constexpr int stock = 256 << 20; // of addresses; memory follows with its use
    mallopt(M_MMAP_THRESHOLD, largestOwnBlock);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_TOP_PAD, stock);
    // A block that is larger than the heap at first brings the stock. It keeps what lies ahead of the first large page,
    // of which nothing is used.
    constexpr std::size_t largePage = std::size_t{2} << 20;
    void* const block = std::malloc(largePage);
    if (block == nullptr)
        return;
    const std::size_t ahead = largePage - reinterpret_cast<std::uintptr_t>(block) % largePage;
    static char* const start = static_cast<char*>(std::realloc(block, ahead));
    madvise(start + ahead, stock, MADV_HUGEPAGE);
}

} // namespace orvane
