#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMesh.h"

namespace bench {

/// A ball with bumps around a point, with normals: `rows` rings of twice as many squares of two triangles each.
NxRef<NxMesh> bumpyBall(int rows, float radius, float x, float y, float z);

/// 10,240,000 triangles in one mesh, in the ball of radius 1.
NxRef<NxGroup> oneLargeBall();
/// 1,000 meshes of 10,000 triangles each, in the cube from -1 to 1.
NxRef<NxGroup> manyBalls();
/// 1,000 instances of a mesh of 10,000 triangles, there too.
NxRef<NxGroup> ballInstances();

} // namespace bench
