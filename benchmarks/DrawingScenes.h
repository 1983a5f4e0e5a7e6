#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <cstddef>

namespace bench {

/// A wavy square of `columns` by `rows` squares of two triangles each, with normals: from (left, bottom) to
/// (left + size, bottom + size).
NxRef<NxMesh> wavyMesh(int columns, int rows, float left, float bottom, float size);

/// The square from -1 to 1 covered by `across` times `across` wavy meshes.
NxRef<NxGroup> tiledScene(int across, int columns, int rows);

/// `inView` small nodes between -1 and 1, and far away from them as many more as make `all`. A node is a transform with
/// a material and one mesh that all share.
NxRef<NxGroup> spreadScene(int inView, int all);

/// The bytes of all lists of a mesh.
std::size_t bytesOf(const NxMesh& mesh);

} // namespace bench
