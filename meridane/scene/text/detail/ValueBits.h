#pragma once

#include "meridane/base/values/VbString.h"

#include <cstddef>
#include <cstring>
#include <span>
#include <type_traits>
#include <vector>

/// What fields need to know of their values' memory.
namespace meridane {

/// True when both are the same to the bit: a NaN is the same as itself, and 0 isn't the same as -0.
template <typename Value>
bool isSameValue(const Value& left, const Value& right)
{
    if constexpr (std::is_trivially_copyable_v<Value>) {
        // None of the value types has padding, so that comparing bytes compares values.
        // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): floats are meant to be compared by their bits
        return std::memcmp(&left, &right, sizeof(Value)) == 0;
    } else {
        return left == right; // a type of a plug-in
    }
}
inline bool isSameValue(const VbString& left, const VbString& right)
{
    return left == right;
}

template <typename Value>
bool areSameValues(std::span<const Value> left, std::span<const Value> right)
{
    if (left.size() != right.size())
        return false;
    if constexpr (std::is_trivially_copyable_v<Value>) {
        // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): floats are meant to be compared by their bits
        return left.empty() || std::memcmp(left.data(), right.data(), left.size_bytes()) == 0;
    } else {
        for (std::size_t i = 0; i < left.size(); ++i) {
            if (!isSameValue(left[i], right[i]))
                return false;
        }
        return true;
    }
}

template <typename Value>
bool isSameValue(const std::vector<Value>& left, const std::vector<Value>& right)
{
    return areSameValues<Value>(left, right);
}

/// About how many bytes a value holds.
template <typename Value>
std::size_t bytesOfValue(const Value& /*value*/)
{
    return sizeof(Value);
}
inline std::size_t bytesOfValue(const VbString& value)
{
    return sizeof(VbString) + value.view().size();
}
template <typename Value>
std::size_t bytesOfValue(const std::vector<Value>& values)
{
    if constexpr (std::is_trivially_copyable_v<Value>) {
        return sizeof(values) + values.size() * sizeof(Value);
    } else {
        std::size_t bytes = sizeof(values);
        for (const Value& value : values)
            bytes += bytesOfValue(value);
        return bytes;
    }
}

} // namespace meridane
