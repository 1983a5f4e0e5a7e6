#include "orvane/app/tree/SceneBranch.h"

#include <algorithm>
#include <iterator>
#include <utility>

SceneBranch::SceneBranch(NxNode* node, SceneBranch* parent, int row)
    : m_node(node)
    , m_parent(parent)
    , m_row(row)
    , m_sensor([](void* data, NxSensor*) { static_cast<SceneBranch*>(data)->m_changed(); }, this)
{
}

int SceneBranch::findRow(const NxNode* node, int start) const
{
    const auto found = std::find_if(m_children.begin() + std::min(start, count()), m_children.end(),
        [node](const NxRef<NxNode>& child) { return child.get() == node; });
    return found == m_children.end() ? -1 : static_cast<int>(found - m_children.begin());
}

SceneBranch* SceneBranch::branch(int row) const
{
    const auto found = m_branches.find(row);
    return found == m_branches.end() ? nullptr : found->second.get();
}

SceneBranch& SceneBranch::addBranch(int row)
{
    auto made = std::make_unique<SceneBranch>(child(row), this, row);
    return *m_branches.insert_or_assign(row, std::move(made)).first->second;
}

void SceneBranch::insertRows(int row, std::vector<NxRef<NxNode>> nodes)
{
    shiftBranches(row, static_cast<int>(nodes.size()));
    if (m_children.empty())
        m_children = std::move(nodes);
    else
        m_children.insert(
            m_children.begin() + row, std::make_move_iterator(nodes.begin()), std::make_move_iterator(nodes.end()));
}

void SceneBranch::removeRows(int row, int count)
{
    m_branches.erase(m_branches.lower_bound(row), m_branches.lower_bound(row + count));
    shiftBranches(row, -count);
    m_children.erase(m_children.begin() + row, m_children.begin() + row + count);
}

void SceneBranch::shiftBranches(int from, int distance)
{
    std::vector<std::unique_ptr<SceneBranch>> moved;
    for (auto place = m_branches.lower_bound(from); place != m_branches.end(); place = m_branches.erase(place))
        moved.push_back(std::move(place->second));
    for (std::unique_ptr<SceneBranch>& branch : moved) {
        branch->m_row += distance;
        const int row = branch->m_row;
        m_branches.emplace(row, std::move(branch));
    }
}

void SceneBranch::watch(std::function<void()> changed)
{
    m_changed = std::move(changed);
    m_sensor.attach(m_node.get());
}
