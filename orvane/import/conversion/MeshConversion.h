#pragma once

#include "orvane/import/conversion/TextureMapping.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <memory>
#include <string>

#include <assimp/mesh.h>

/// Meshes between a scene and the import library.
namespace orvane {

/// The mesh with its first colours, and with the texture coordinates that its texture uses. Its faces are of one kind.
[[nodiscard]] NxRef<NxMesh> toMesh(const aiMesh& mesh, const TextureMapping& mapping = {});
/// The reverse, without a material. Null for a mesh without faces, and for one with an index that has no position; then
/// `error` says so. Lists whose length doesn't match the positions are left out.
[[nodiscard]] std::unique_ptr<aiMesh> toAiMesh(const NxMesh& mesh, std::string& error);

} // namespace orvane
