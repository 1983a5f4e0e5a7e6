#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <memory>
#include <string>

namespace Assimp {
class Importer;
}

namespace orvane {

/// Reads a foreign model. The destructor frees the data of the import library, which can take longer than writing the
/// scene; a process that is about to exit can skip it.
class ModelReader {
public:
    ModelReader();
    ~ModelReader();

    /// Returns the scene, or null; then `error` begins with the file's name and says why. Files of textures aren't
    /// opened; embedded textures become images.
    [[nodiscard]] NxRef<NxGroup> read(const std::string& path, std::string& error);

private:
    std::unique_ptr<Assimp::Importer> m_importer;
};

} // namespace orvane
