#pragma once

#include "orvane/import/mending/ImportWarnings.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// The content of a `.gltf` or `.glb` file without what refers to parts that it hasn't, and without meshes of that name
/// and those that have nothing to draw: for each of these the import library refuses the whole file. Each is named in a
/// warning. Returns nothing for a file of another format, and if there is nothing to leave out.
///
/// `emptyMesh` is the name that the library gives to a mesh without a usable face; empty for none.
[[nodiscard]] std::optional<std::string> withoutUnusableParts(
    std::string_view file, std::string_view emptyMesh, ImportWarnings& warnings);

} // namespace orvane
