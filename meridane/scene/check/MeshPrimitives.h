#pragma once

#include "meridane/base/values/VbVec.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class NxMesh;

/// What a mesh can be drawn from. The defaults of ignored fields apply.
namespace meridane {

/// One of NxMesh::Primitive; triangles for a value that is none.
[[nodiscard]] int primitiveOf(const NxMesh& mesh);
/// The number of indices of a primitive.
[[nodiscard]] constexpr std::size_t cornersOf(int primitive) noexcept
{
    return primitive == 2 ? 1 : primitive == 1 ? 2 : 3;
}

/// Whether a position can be drawn: whether it is finite.
[[nodiscard]] bool isUsable(const VbVec3f& position) noexcept;
/// Whether three finite positions make a triangle without area, exactly.
[[nodiscard]] bool hasNoArea(const VbVec3f& first, const VbVec3f& second, const VbVec3f& third) noexcept;
/// Whether a normal has a length of 1, or of 0.99 to 1.01, as rounding makes it.
[[nodiscard]] bool hasUnitLength(const VbVec3f& normal) noexcept;
/// How many of the indices lead to no position.
[[nodiscard]] std::size_t countOutOfRange(std::span<const int> indices, std::size_t positions) noexcept;

/// The indices of all whole primitives whose positions exist and are finite.
[[nodiscard]] std::vector<std::uint32_t> usableIndices(const NxMesh& mesh);

} // namespace meridane
