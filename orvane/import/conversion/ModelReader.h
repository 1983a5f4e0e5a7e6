#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <memory>
#include <string>

namespace Assimp {
class Importer;
}

namespace orvane {

/// Reads a foreign model, and keeps what the import library made of it: to give that back takes longer than some
/// scenes take to be written, so a process that is about to end needn't.
class ModelReader {
public:
    ModelReader();
    ~ModelReader();

    /// The result is a scene, or null with `error` saying why, the file's name first. Textures that the model refers to
    /// aren't opened; those that it holds become images.
    [[nodiscard]] NxRef<NxGroup> read(const std::string& path, std::string& error);

private:
    std::unique_ptr<Assimp::Importer> m_importer;
};

} // namespace orvane
