#pragma once

struct aiScene;

namespace orvane {

/// The factor, a power of two, by which the positions of a model must be multiplied before the import library joins
/// vertices: it takes positions as equal that are 0.00001 apart, whatever the size of the model is. 1 if all meshes are
/// large enough.
[[nodiscard]] float joiningScale(const aiScene& model);

/// Multiplies all positions, which is exact for a power of two.
void scalePositions(const aiScene& model, float factor);

} // namespace orvane
