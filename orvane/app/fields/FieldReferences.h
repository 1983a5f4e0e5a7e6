#pragma once

#include "orvane/app/fields/values/FieldSet.h"

#include <QString>

#include <vector>

class NxGroup;
class NxNode;

/// Fields by what they are called and by what they have in a scene.
namespace orvane {

/// The paths of the fields in the scene, a line for each, in the order of the scene. Fields of nodes that aren't in it
/// are left out.
[[nodiscard]] QString pathsOf(const FieldSet& fields, const NxGroup& scene);

/// Arguments of the command line that set the fields to their present values, a line for each, quoted for a shell.
[[nodiscard]] QString assignmentsOf(const FieldSet& fields, const NxGroup& scene);

/// All nodes of the scene that have a field like this one with the same value to the bit, also its own node.
[[nodiscard]] std::vector<NxNode*> nodesWithValue(const NxField& field, const NxGroup& scene);

} // namespace orvane
