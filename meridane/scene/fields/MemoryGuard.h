#pragma once

#include "meridane/base/errors/NxMemoryError.h"

#include <cstddef>
#include <new>
#include <stdexcept>

namespace meridane {

/// Posts an `NxMemoryError` about that many bytes, if there is memory for that. Always returns false.
inline bool reportMemory(std::size_t bytes)
{
    try {
        NxMemoryError::post(nullptr, 0, bytes);
    } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch): it can't be reported
    }
    return false;
}

/// Runs an action that allocates about `bytes` of memory, and returns its result. If it runs out of memory, or requests
/// more than can be counted, posts an `NxMemoryError` and returns false.
template <typename Action>
bool withinMemory(std::size_t bytes, Action action)
{
    try {
        return action();
    } catch (const std::bad_alloc&) {
        return reportMemory(bytes);
    } catch (const std::length_error&) {
        return reportMemory(bytes);
    }
}

} // namespace meridane
