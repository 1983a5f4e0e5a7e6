#include "meridane/gl/places/NxNodeVisibility.h"

void NxNodeVisibility::setHidden(std::span<NxNode* const> nodes)
{
    set(nodes, &State::isHidden);
}

void NxNodeVisibility::setIsolated(std::span<NxNode* const> nodes)
{
    set(nodes, &State::isIsolated);
    m_isolated = nodes.size();
}

void NxNodeVisibility::set(std::span<NxNode* const> nodes, bool State::*part)
{
    for (auto& [node, mark] : m_marks)
        mark.own.*part = false;
    for (NxNode* const node : nodes) {
        Mark& mark = m_marks[node];
        mark.node = NxRef<NxNode>(node);
        mark.own.*part = true;
    }
    std::erase_if(m_marks, [](const auto& entry) {
        const State& own = entry.second.own;
        return !own.isHidden && !own.isIsolated;
    });
}

NxNodeVisibility::State NxNodeVisibility::below(State above, const NxNode& node) const
{
    const auto found = m_marks.find(&node);
    if (found == m_marks.end())
        return above;
    const State& own = found->second.own;
    return {above.isHidden || own.isHidden, above.isIsolated || own.isIsolated};
}
