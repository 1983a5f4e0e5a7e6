#pragma once

#include "orvane/import/mending/ImportWarnings.h"

#include <string>
#include <string_view>

namespace orvane {

/// The text of an OBJ file without the faces, lines and points that have an index out of range, for which the import
/// library refuses the whole file. Each object or group that loses one is named in a warning.
[[nodiscard]] std::string withoutUnusableFaces(std::string_view text, ImportWarnings& warnings);

} // namespace orvane
