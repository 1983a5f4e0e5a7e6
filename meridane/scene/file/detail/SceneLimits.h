#pragma once

#include <cstddef>

namespace meridane {

/// The longest name of a node in a scene file, in bytes and with its quotes and escapes, and the longest identifier.
inline constexpr std::size_t maxNameLength = std::size_t{1} << 16U;

/// How deep nodes may be nested.
inline constexpr int maxSceneDepth = 512;

} // namespace meridane
