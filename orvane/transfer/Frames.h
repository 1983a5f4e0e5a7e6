#pragma once

#include <charconv>
#include <cstddef>
#include <optional>
#include <string_view>

/// What the readers of framed bytes share: each takes something off the front of the bytes.
namespace orvane {

/// Takes that start off. False, and nothing is taken, for bytes that begin otherwise.
[[nodiscard]] inline bool takeStart(std::string_view& bytes, std::string_view start)
{
    if (!bytes.starts_with(start))
        return false;
    bytes.remove_prefix(start.size());
    return true;
}

/// Takes a line off and gives it without its end. Nothing for bytes without a line feed among the first `longest`.
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

/// Takes a whole number off, of digits alone. Nothing for bytes that begin otherwise and a number beyond all sizes.
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
