#pragma once

struct aiNode;

namespace orvane {

/// Folds the nodes into one that the reader of FBX files adds for a node: one for each of its pivots, offsets and
/// rotations. All meshes remain where they are. A transform that is for the meshes of a node alone, and not for its
/// children, goes to a node without a name below it.
void foldPivots(aiNode& root);

} // namespace orvane
