#pragma once

#include <string>

namespace bench {

inline constexpr int largeSceneNodes = 1'000'000;

/// The text of a scene of small nodes, all in one group: each a node of three fields, one of them not at its default.
std::string sceneText(int nodes);

/// Writes the text to a temporary file and returns its name.
std::string sceneFile(int nodes);

} // namespace bench
