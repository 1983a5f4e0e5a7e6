#pragma once

#include "meridane/scene/NxGroup.h"
#include "meridane/scene/NxRef.h"

#include <string>

namespace orvane {

/// Reads a foreign model.
///
/// The result is a scene, or null with `error` saying why, the file's name first. Textures that the model refers to
/// aren't opened; those that it holds become images.
[[nodiscard]] NxRef<NxGroup> readModel(const std::string& path, std::string& error);

} // namespace orvane
