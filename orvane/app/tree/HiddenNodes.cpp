#include "orvane/app/tree/HiddenNodes.h"

#include <unordered_set>

namespace {

std::vector<NxNode*> withoutDoubles(std::span<NxNode* const> nodes, std::span<NxNode* const> more = {})
{
    std::vector<NxNode*> result;
    std::unordered_set<const NxNode*> known;
    for (const auto& list : {nodes, more}) {
        for (NxNode* const node : list) {
            if (known.insert(node).second)
                result.push_back(node);
        }
    }
    return result;
}

} // namespace

void HiddenNodes::hide(std::span<NxNode* const> nodes)
{
    std::vector<NxNode*> all = withoutDoubles(m_hidden, nodes);
    if (all.size() == m_hidden.size())
        return;
    m_hidden = std::move(all);
    update();
}

void HiddenNodes::show(std::span<NxNode* const> nodes)
{
    const std::unordered_set<const NxNode*> wanted(nodes.begin(), nodes.end());
    if (std::erase_if(m_hidden, [&wanted](const NxNode* node) { return wanted.contains(node); }) > 0)
        update();
}

void HiddenNodes::reveal(std::span<const std::vector<NxNode*>> paths)
{
    std::vector<NxNode*> above;
    for (const std::vector<NxNode*>& path : paths)
        above.insert(above.end(), path.begin(), path.end());
    show(above);
    std::vector<NxNode*> outside;
    for (const std::vector<NxNode*>& path : paths) {
        if (!path.empty() && !isShown(path))
            outside.push_back(path.back());
    }
    if (outside.empty())
        return;
    m_isolated = withoutDoubles(m_isolated, outside);
    update();
}

void HiddenNodes::isolate(std::span<NxNode* const> nodes)
{
    m_isolated = withoutDoubles(nodes);
    // What is isolated is meant to be seen.
    const std::unordered_set<const NxNode*> wanted(nodes.begin(), nodes.end());
    std::erase_if(m_hidden, [&wanted](const NxNode* node) { return wanted.contains(node); });
    update();
}

void HiddenNodes::showAll()
{
    if (isEmpty())
        return;
    m_hidden.clear();
    m_isolated.clear();
    update();
}

bool HiddenNodes::isShown(std::span<NxNode* const> path) const
{
    NxNodeVisibility::State state;
    for (const NxNode* const node : path)
        state = m_visibility.below(state, *node);
    return m_visibility.shows(state);
}

void HiddenNodes::update()
{
    m_visibility.setHidden(m_hidden);
    m_visibility.setIsolated(m_isolated);
    Q_EMIT changed();
}
