#pragma once

#include "meridane/scene/compare/NxSceneDifference.h"

#include <vector>

class NxField;

namespace meridane {

/// A field of a node, or null for an unknown field and for `none`.
[[nodiscard]] NxField* knownField(NxNode& node, NxSceneDifference::Field field);
/// An unknown field of a node; null for a known one, for `none` and for one that the node doesn't have any more.
[[nodiscard]] const NxFieldContainer::UnknownField* unknownField(const NxNode& node, NxSceneDifference::Field field);

/// Appends the differences of the fields of two nodes, whose `node` is 0: to the bit, as a scene file would have them.
///
/// Fields of one class are compared one by one. Unknown fields, and all fields of nodes of different classes, are
/// compared by name; a field that only one of the nodes has is a difference unless it has its default.
void compareFields(NxNode& left, NxNode& right, std::vector<NxSceneDifference>& differences);

} // namespace meridane
