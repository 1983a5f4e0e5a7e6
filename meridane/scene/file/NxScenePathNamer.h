#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>

class NxField;

namespace meridane {
class SiblingIndex;
}

/// Makes the texts of paths that `NxScenePath::toText` makes, for one node after the other of a scene of any size.
///
/// Whether a name is unique takes a look at all siblings. Among many siblings the namer takes that look in slices and
/// remembers what it saw, so that the next path costs the same as in a small scene, until a node is renamed or a list
/// of children changes. Thread of the user interface only.
class NxScenePathNamer {
public:
    NxScenePathNamer();
    ~NxScenePathNamer();
    NxScenePathNamer(const NxScenePathNamer&) = delete;
    NxScenePathNamer& operator=(const NxScenePathNamer&) = delete;

    /// The path of the node that these places lead to, each the index of a child of the node before, the first of the
    /// scene; with a field of that node, unless it is null. Null when the budget was spent first: the next call goes
    /// on.
    [[nodiscard]] std::optional<std::string> name(
        const NxGroup& scene, std::span<const int> places, const NxField* field, const meridane::WorkBudget& budget);
    /// Forgets everything.
    void clear();

private:
    /// The index of large groups only, each complete or still being gathered.
    std::unordered_map<const NxNode*, meridane::SiblingIndex> m_indices;
    std::uint64_t m_revision = 0; // of the scene that they were made from
};
