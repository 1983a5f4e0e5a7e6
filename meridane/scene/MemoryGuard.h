#pragma once

#include "meridane/base/NxMemoryError.h"

#include <cstddef>
#include <new>

namespace meridane {

/// Runs an action that takes about `bytes` of memory, and gives its result. If it runs out of memory, that is reported
/// as an `NxMemoryError`, and the result is false.
template <typename Action>
bool withinMemory(std::size_t bytes, Action action)
{
    try {
        return action();
    } catch (const std::bad_alloc&) {
        NxMemoryError::post(nullptr, 0, bytes);
        return false;
    }
}

} // namespace meridane
