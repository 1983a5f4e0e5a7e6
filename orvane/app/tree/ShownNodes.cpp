#include "orvane/app/tree/ShownNodes.h"

#include "orvane/app/tree/facts/IgnoredFields.h"

#include <algorithm>

struct ShownNodes::Watch {
    Watch(ShownNodes* shown, NxNode* watched)
        : owner(shown)
        , node(watched)
        , sensor(
              [](void* data, NxSensor*) {
                  auto* watch = static_cast<Watch*>(data);
                  watch->owner->report(*watch);
              },
              this)
    {
        takeState();
        sensor.attach(watched);
    }

    /// True when what a row shows of the node is something else than before.
    bool takeState()
    {
        const std::size_t count = node->getChildren().size();
        const bool ignores = orvane::hasIgnoredField(*node);
        if (name == node->getName() && count == children && ignores == hasIgnored)
            return false;
        name = node->getName();
        children = count;
        hasIgnored = ignores;
        return true;
    }

    ShownNodes* owner;
    NxNode* node;
    NxNodeSensor sensor;
    VbString name;
    std::size_t children = 0;
    bool hasIgnored = false;
    std::vector<SceneBranch*> branches;
};

ShownNodes::ShownNodes(Changed changed)
    : m_changed(std::move(changed))
{
}

ShownNodes::~ShownNodes() = default;

void ShownNodes::note(SceneBranch& branch, NxNode& node)
{
    auto watch = m_watches.find(&node);
    if (watch == m_watches.end()) {
        auto made = std::make_unique<Watch>(this, &node);
        m_order.push_back(&node);
        watch = m_watches.emplace(&node, std::move(made)).first;
    }
    std::vector<SceneBranch*>& branches = watch->second->branches;
    if (std::find(branches.begin(), branches.end(), &branch) == branches.end())
        branches.push_back(&branch);
    if (m_watches.size() > capacity || m_order.size() > 2 * capacity)
        forgetOldest();
}

void ShownNodes::forget(const SceneBranch& branch, const NxNode& node)
{
    const auto found = m_watches.find(&node);
    if (found == m_watches.end())
        return;
    std::erase(found->second->branches, &branch);
    if (found->second->branches.empty())
        m_watches.erase(found);
}

void ShownNodes::forget(const SceneBranch& branch)
{
    std::erase_if(m_watches, [&branch](const auto& entry) {
        std::erase(entry.second->branches, &branch);
        return entry.second->branches.empty();
    });
}

void ShownNodes::clear()
{
    m_watches.clear();
    m_order.clear();
}

void ShownNodes::report(Watch& watch)
{
    const bool hadChildren = watch.children > 0;
    if (!watch.takeState())
        return;
    const bool unfolds = (watch.children > 0) != hadChildren;
    const std::vector<SceneBranch*> branches = watch.branches; // the callback may change the original
    NxNode& node = *watch.node;
    for (SceneBranch* branch : branches)
        m_changed(*branch, node, unfolds);
}

void ShownNodes::forgetOldest()
{
    m_watches.erase(m_order.front());
    m_order.pop_front();
}
