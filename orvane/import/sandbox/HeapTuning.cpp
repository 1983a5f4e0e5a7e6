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
    constexpr int largestOwnBlock = 32 << 20; // larger blocks are always returned
    constexpr int stock = 256 << 20; // of address space; memory is used on first access
    mallopt(M_MMAP_THRESHOLD, largestOwnBlock);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_TOP_PAD, stock);
    // A block larger than the initial heap makes the heap grow by the stock. The block keeps only the part before the
    // first large page, and that isn't used.
    constexpr std::size_t largePage = std::size_t{2} << 20;
    void* const block = std::malloc(largePage);
    if (block == nullptr)
        return;
    const std::size_t unaligned = largePage - reinterpret_cast<std::uintptr_t>(block) % largePage;
    static char* const start = static_cast<char*>(std::realloc(block, unaligned));
    madvise(start + unaligned, stock, MADV_HUGEPAGE);
}

} // namespace orvane
