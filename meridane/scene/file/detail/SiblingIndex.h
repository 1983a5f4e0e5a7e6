#pragma once

#include "meridane/scene/file/detail/ScenePathStep.h"
#include "meridane/scene/nodes/NxNode.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace meridane {

/// What the children of one node are called in scene paths, gathered once for all of them: the step to a child is then
/// told without a look at its siblings. Some bytes a child.
///
/// Good for one state of the scene: it must not be asked once a child was renamed or the list of children changed.
class SiblingIndex {
public:
    explicit SiblingIndex(const NxNode& parent);

    /// Looks at the next `count` children. True when all were looked at.
    bool gather(std::size_t count);
    /// The same as `ScenePathStep::of` for the child at that place. All must have been looked at.
    [[nodiscard]] ScenePathStep step(std::size_t place) const;

private:
    void noteName(std::uint32_t place);
    void noteClass(const NxNode& child);
    [[nodiscard]] std::size_t slotOf(std::string_view name) const;

    const NxNode& m_parent;
    /// Of each child, how many of its class stand ahead of it.
    std::vector<std::uint32_t> m_indices;
    std::unordered_map<std::string_view, std::uint32_t> m_classes; // how many there are of each
    const char* m_lastClass = nullptr;
    std::uint32_t* m_lastCount = nullptr;
    // The names by their hash, in two arrays: a million names are forgotten in no time.
    std::vector<std::uint32_t> m_names; // one more than the place of the first child of a name; 0 for a free slot
    std::vector<bool> m_repeated; // for each slot, whether another child has the name too
};

} // namespace meridane
