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

/// Makes the same texts of paths as `NxScenePath::toText`, for many nodes of a scene of any size.
///
/// To decide whether a name is unique, all siblings must be visited. The namer visits many siblings in slices and keeps
/// an index of them, so that the next path costs the same as in a small scene, until a node is renamed or a list of
/// children changes. Thread of the user interface only.
class NxScenePathNamer {
public:
    NxScenePathNamer();
    ~NxScenePathNamer();
    NxScenePathNamer(const NxScenePathNamer&) = delete;
    NxScenePathNamer& operator=(const NxScenePathNamer&) = delete;

    /// The path of a node, or of its field unless that is null. `places` are indices: of a child of the scene, of a
    /// child of that, and so on. Null if the budget was spent; the next call continues.
    [[nodiscard]] std::optional<std::string> name(
        const NxGroup& scene, std::span<const int> places, const NxField* field, const meridane::WorkBudget& budget);
    /// Forgets everything.
    void clear();

private:
    /// The indices of large groups, each complete or in work.
    std::unordered_map<const NxNode*, meridane::SiblingIndex> m_indices;
    std::uint64_t m_revision = 0; // of the scene that they were made from
};
