#pragma once

#include "orvane/transfer/FramedFiles.h"

#include "meridane/scene/nodes/NxGroup.h"

#include <string>
#include <vector>

namespace orvane {

/// Turns a scene into the files of a foreign model, the one that was asked for first.
///
/// `extension` names the format, `name` the files. The result is empty, with `error` saying why, for a format that
/// isn't written, a scene without a mesh, and whatever else the export library refuses.
[[nodiscard]] std::vector<NamedFile> writeModel(
    NxGroup& scene, const std::string& extension, const std::string& name, std::string& error);

} // namespace orvane
