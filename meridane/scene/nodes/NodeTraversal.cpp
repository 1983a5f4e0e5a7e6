#include "meridane/scene/nodes/NodeTraversal.h"

#include "meridane/scene/nodes/NxNode.h"

#include <algorithm>
#include <iterator>

namespace meridane {

NodeTraversal::NodeTraversal(const NxNode& top)
    : m_levels{{top.getChildren()}}
{
}

NxNode* NodeTraversal::next()
{
    NxNode* node = nextUse();
    while (node != nullptr && !m_isFirstUse)
        node = nextUse();
    return node;
}

NxNode* NodeTraversal::nextUse()
{
    if (m_isFirstUse) {
        if (const auto children = m_levels.back().latest()->getChildren(); !children.empty())
            m_levels.push_back({children});
    }
    m_isFirstUse = false;
    while (!m_levels.empty() && m_levels.back().next == m_levels.back().children.size())
        m_levels.pop_back();
    if (m_levels.empty())
        return nullptr;
    ++m_levels.back().next;
    // Nodes are anywhere in memory: those that come soon are asked for early.
    constexpr std::size_t ahead = 12;
    if (const Level& level = m_levels.back(); level.next + ahead < level.children.size())
        __builtin_prefetch(level.children[level.next + ahead]);
    NxNode* const node = m_levels.back().latest();
    // Each use holds a reference, so most nodes aren't looked up.
    m_isFirstUse = node->getRefCount() == 1 || m_visited.insert(node).second;
    return node;
}

std::vector<NxNode*> NodeTraversal::path() const
{
    std::vector<NxNode*> nodes;
    nodes.reserve(m_levels.size());
    for (const Level& level : m_levels)
        nodes.push_back(level.latest());
    return nodes;
}

std::vector<int> NodeTraversal::indices() const
{
    std::vector<int> indices;
    indices.reserve(m_levels.size());
    for (const Level& level : m_levels)
        indices.push_back(static_cast<int>(level.next) - 1);
    return indices;
}

// Keeps its own stack, since nodes may be nested deeply.
bool isAbove(std::span<NxNode* const> nodes, const NxNode* wanted)
{
    std::vector<NxNode*> waiting;
    std::ranges::copy_if(
        nodes, std::back_inserter(waiting), [](const NxNode* node) { return !node->getChildren().empty(); });
    std::unordered_set<const NxNode*> seen; // shared nodes are visited once
    while (!waiting.empty()) {
        NxNode* node = waiting.back();
        waiting.pop_back();
        for (NxNode* child : node->getChildren()) {
            if (child == wanted)
                return true;
            if (!child->getChildren().empty() && (child->getRefCount() == 1 || seen.insert(child).second))
                waiting.push_back(child);
        }
    }
    return false;
}

} // namespace meridane
