#pragma once

#include "meridane/gl/places/detail/LookRecords.h"
#include "meridane/gl/places/detail/MeshRecord.h"

namespace meridane {

class Matrix4d;
struct PictureFrame;

/// The number of cells along its longest side that a mesh is simplified to (see `simplified`), a power of two; 0 for
/// full detail. In object space, detail is reduced below a complexity of 0.5. In screen space, a cell is as large as
/// two pixels at a complexity of 0.5, and as one pixel at 1. `bounds` are relative to the eye.
[[nodiscard]] std::uint32_t detailCells(
    const ComplexityValues& complexity, const MeshShape& shape, const NxBounds& bounds, const PictureFrame& frame);

/// The coarsest reduced mesh whose error is at most `pixels` in the picture, or full detail if there is none that is
/// worth it. Meshes with very many vertices get the finest one at least, however near they are. `bounds` are relative
/// to the eye.
[[nodiscard]] MeshDetail detailWithin(float pixels, const MeshRecord& mesh, const Matrix4d& worldTransform,
    const NxBounds& bounds, const PictureFrame& frame);

} // namespace meridane
