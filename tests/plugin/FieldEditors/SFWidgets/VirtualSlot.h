#pragma once

#include <cstddef>
#include <cstring>

/// The place of a virtual operation in its class's table, counted in pointers: what a library built against the header
/// relies on. Reads it out of the pointer to member, which holds the offset plus one with the platform's C++ ABI.
template <typename Function>
std::ptrdiff_t virtualSlot(Function function)
{
    std::ptrdiff_t word = 0;
    static_assert(sizeof(function) >= sizeof(word));
    std::memcpy(&word, &function, sizeof(word));
    return (word - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}
