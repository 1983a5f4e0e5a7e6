#pragma once

#include <vector>

class NxFieldContainer;
class NxNode;

namespace orvane {

/// The first way, in the order of the scene, from the nodes below `top` down to `wanted`, which is the last of the
/// result; empty when there is none. Each node is visited once, however many places it has.
[[nodiscard]] std::vector<NxNode*> findPath(const NxNode* top, const NxFieldContainer* wanted);

} // namespace orvane
