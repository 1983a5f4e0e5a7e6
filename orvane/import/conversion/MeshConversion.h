#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <memory>
#include <string>

#include <assimp/mesh.h>

/// Meshes between a scene and the import library.
namespace orvane {

/// The mesh with its first colours and texture coordinates. Its faces are of one kind.
[[nodiscard]] NxRef<NxMesh> toMesh(const aiMesh& mesh);
/// The way back, without a material. Null for a mesh without a face and, with `error` told, for one whose indices go
/// beyond its positions. Lists that don't fit the positions are left out.
[[nodiscard]] std::unique_ptr<aiMesh> toAiMesh(const NxMesh& mesh, std::string& error);

} // namespace orvane
