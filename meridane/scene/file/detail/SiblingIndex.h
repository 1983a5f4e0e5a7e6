#pragma once

#include "meridane/scene/file/detail/ScenePathStep.h"
#include "meridane/scene/nodes/NxNode.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace meridane {

/// An index of the names of a node's children, so that the path step to a child is found without visiting its siblings.
/// It takes some bytes for each child.
///
/// It must not be used after a child was renamed or the list of children changed.
class SiblingIndex {
public:
    explicit SiblingIndex(const NxNode& parent);

    /// Adds the next `count` children. Returns true when all were added.
    bool gather(std::size_t count);
    /// The same as `ScenePathStep::of` for the child at that index. All children must have been added.
    [[nodiscard]] ScenePathStep step(std::size_t place) const;

private:
    void noteName(std::uint32_t place);
    void noteClass(const NxNode& child);
    [[nodiscard]] std::size_t slotOf(std::string_view name) const;

    const NxNode& m_parent;
    /// For each child, the number of children of its class before it.
    std::vector<std::uint32_t> m_indices;
    std::unordered_map<std::string_view, std::uint32_t> m_classes; // the number of children of each
    const char* m_lastClass = nullptr;
    std::uint32_t* m_lastCount = nullptr;
    // The names by their hash, in two arrays, which are freed quickly even for a million names.
    std::vector<std::uint32_t> m_names; // the index of the first child of a name plus 1; 0 for a free slot
    std::vector<bool> m_repeated; // for each slot, whether another child has the name too
};

} // namespace meridane
