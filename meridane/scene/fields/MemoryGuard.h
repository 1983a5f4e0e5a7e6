#pragma once

#include "meridane/base/errors/NxMemoryError.h"

#include <cstddef>
#include <new>
#include <stdexcept>

namespace meridane {

/// Posts an `NxMemoryError` about that many bytes, unless there isn't even memory for that. Always false.
inline bool reportMemory(std::size_t bytes)
{
    try {
        NxMemoryError::post(nullptr, 0, bytes);
    } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch): nobody can be told
    }
    return false;
}

/// Runs an action that takes about `bytes` of memory, and gives its result. If it runs out of memory, or asks for more
/// than can be counted, that is reported as an `NxMemoryError`, and the result is false.
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
