#pragma once

#include <array>
#include <cstddef>
#include <cstring>

/// The place of a virtual operation in its class's table, as the platform's binary interface lays it out: a pointer to
/// it holds its offset in bytes and one. A virtual destructor takes two places.
template <typename Operation>
std::size_t virtualSlot(Operation operation)
{
    std::array<std::size_t, 2> representation{};
    static_assert(sizeof(operation) == sizeof(representation));
    std::memcpy(representation.data(), &operation, sizeof(operation));
    return (representation[0] - 1) / sizeof(void*);
}
