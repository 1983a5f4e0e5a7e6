#pragma once

#include "orvane/transfer/FramedFiles.h"

#include "meridane/scene/nodes/NxGroup.h"

#include <string>
#include <vector>

namespace orvane {

/// Converts a scene to the files of a foreign model. The model's own file comes first.
///
/// `extension` selects the format, `name` is the name of the files. Returns no file, and says why in `error`, for a
/// format that can't be written, a scene without a mesh, and anything else that the export library refuses.
[[nodiscard]] std::vector<NamedFile> writeModel(
    NxGroup& scene, const std::string& extension, const std::string& name, std::string& error);

} // namespace orvane
