#pragma once

#include "meridane/scene/nodes/NxNode.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace meridane {

/// The nodes of a scene file that may be used again: those read whole, under their names and labels. Most scenes use
/// none, so the index is made when it is first needed.
class SceneReferences {
public:
    /// Takes a node that was read whole. It must keep its name as long as this object is used.
    void add(NxNode* node, const std::string& label);
    /// Brings the index up to date, by about `budget` nodes at a time. True when there is more to do.
    bool update(std::size_t budget);
    /// The last node added under that name or label, or null.
    [[nodiscard]] NxNode* find(std::string_view text) const;

private:
    struct Entry {
        std::string_view text;
        NxNode* node;
    };

    std::vector<Entry> m_entries;
    std::deque<std::string> m_labels; // a deque leaves them in place, since the entries point to them
    std::unordered_map<std::string_view, NxNode*> m_index;
    std::size_t m_indexed = 0; // entries in the index
};

} // namespace meridane
