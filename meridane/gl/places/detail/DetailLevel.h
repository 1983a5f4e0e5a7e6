#pragma once

#include "meridane/gl/places/detail/LookRecords.h"
#include "meridane/gl/places/detail/MeshInspection.h"

namespace meridane {

struct PictureFrame;

/// How many cells along its longest side a mesh is simplified to (see `simplified`), always a power of two; 0 for a
/// mesh with all its detail. Up to half of the full complexity there is less detail; from there on all. Measured
/// against the picture, a cell is as large as two pixels at half of the complexity, and one pixel at all of it.
/// `bounds` are relative to the eye.
[[nodiscard]] std::uint32_t detailCells(
    const ComplexityValues& complexity, const MeshShape& shape, const NxBounds& bounds, const PictureFrame& frame);

} // namespace meridane
