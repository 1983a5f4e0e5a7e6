#pragma once

#include "meridane/scene/nodes/NxNode.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace meridane {

/// The nodes of a scene file that can be used again: those read completely, by name and label. Most scenes don't use
/// any, so the index is made when it is first needed.
class SceneReferences {
public:
    /// Adds a node that was read completely. Its name must not change while this object is used.
    void add(NxNode* node, const std::string& label);
    /// Updates the index by about `budget` nodes. Returns true if there is more to do.
    bool update(std::size_t budget);
    /// The last node added under that name or label, or null.
    [[nodiscard]] NxNode* find(std::string_view text) const;

private:
    struct Entry {
        std::string_view text;
        NxNode* node;
    };

    std::vector<Entry> m_entries;
    std::deque<std::string> m_labels; // a deque doesn't move them, and the entries point to them
    std::unordered_map<std::string_view, NxNode*> m_index;
    std::size_t m_indexed = 0; // entries in the index
};

} // namespace meridane
