#pragma once

#include <string>

namespace bench {

/// The size of scene that the benchmarks of scenes measure.
inline constexpr int largeSceneNodes = 1'000'000;

/// The text of a scene file with that many nodes in one group. Each is a complexity, a node of three fields, with one
/// field in the text.
std::string sceneText(int nodes);

/// Writes the text to a file in the folder of temporary files, replacing it, and returns its name.
std::string sceneFile(int nodes);

} // namespace bench
