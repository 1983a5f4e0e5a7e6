#pragma once

#include <charconv>
#include <cstddef>
#include <optional>
#include <string_view>

/// Functions for readers of framed bytes. Each removes something from the start of the bytes.
namespace orvane {

/// Removes that start. Returns false, and removes nothing, if the bytes begin otherwise.
[[nodiscard]] inline bool takeStart(std::string_view& bytes, std::string_view start)
{
    if (!bytes.starts_with(start))
        return false;
    bytes.remove_prefix(start.size());
    return true;
}

/// Removes a line and returns it without its end. Returns nothing if the first `longest` bytes have no line feed.
[[nodiscard]] inline std::optional<std::string_view> takeLine(
    std::string_view& bytes, std::size_t longest = std::string_view::npos)
{
    const std::size_t end = bytes.substr(0, longest).find('\n');
    if (end == std::string_view::npos)
        return std::nullopt;
    const std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(end + 1);
    return line;
}

/// Removes and returns a number of decimal digits. Returns nothing for other bytes, or if it doesn't fit.
[[nodiscard]] inline std::optional<std::size_t> takeNumber(std::string_view& bytes)
{
    std::size_t number = 0;
    const auto [behind, error] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), number);
    if (error != std::errc())
        return std::nullopt;
    bytes.remove_prefix(static_cast<std::size_t>(behind - bytes.data()));
    return number;
}

} // namespace orvane
