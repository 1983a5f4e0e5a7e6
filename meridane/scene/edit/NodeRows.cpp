#include "meridane/scene/edit/NodeRows.h"

#include <algorithm>
#include <compare>
#include <iterator>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace meridane {

namespace {

/// The children of a set that may have others below them.
class GroupsOfSet {
public:
    explicit GroupsOfSet(const NodeSet& set)
    {
        for (const NodeRows& rows : set) {
            std::unordered_set<const NxNode*>* below = nullptr;
            for (const int row : rows.rows) {
                const NxNode* const node = rows.group().getChild(row);
                if (node == nullptr || node->getChildren().empty())
                    continue;
                if (below == nullptr)
                    below = &m_below[&rows.group()];
                below->insert(node);
            }
        }
    }

    /// Whether one of the groups of the path is itself in the set.
    [[nodiscard]] bool hasOneOf(const std::vector<NxGroup*>& path) const
    {
        for (std::size_t i = 0; i + 1 < path.size(); ++i) {
            const auto below = m_below.find(path[i]);
            if (below != m_below.end() && below->second.contains(path[i + 1]))
                return true;
        }
        return false;
    }

private:
    std::unordered_map<const NxGroup*, std::unordered_set<const NxNode*>> m_below;
};

void unite(std::vector<int>& rows, const std::vector<int>& others)
{
    std::vector<int> all;
    all.reserve(rows.size() + others.size());
    std::ranges::set_union(rows, others, std::back_inserter(all));
    rows = std::move(all);
}

/// The order in a tree: by the indices from the top down.
std::strong_ordering compareInTree(const SetMember& left, const SetMember& right)
{
    const auto step = [](const SetMember& member, std::size_t i) {
        return i < member.rows->places.size() ? member.rows->places[i] : member.row;
    };
    const std::size_t leftSize = left.rows->places.size() + 1;
    const std::size_t rightSize = right.rows->places.size() + 1;
    for (std::size_t i = 0; i < std::min(leftSize, rightSize); ++i) {
        const std::strong_ordering order = step(left, i) <=> step(right, i);
        if (order != std::strong_ordering::equal)
            return order;
    }
    return leftSize <=> rightSize;
}

} // namespace

NodeSet topmost(NodeSet set)
{
    const GroupsOfSet groups(set);
    std::erase_if(set, [&](const NodeRows& rows) { return rows.rows.empty() || groups.hasOneOf(rows.path); });
    std::ranges::sort(set, {}, &NodeRows::places);
    std::unordered_map<const NxGroup*, std::size_t> known; // where in the result
    NodeSet result;
    for (NodeRows& rows : set) {
        const auto [place, isNew] = known.try_emplace(&rows.group(), result.size());
        if (isNew)
            result.push_back(std::move(rows));
        else
            unite(result[place->second].rows, rows.rows);
    }
    return result;
}

std::vector<SetMember> inTreeOrder(const NodeSet& set)
{
    std::vector<SetMember> members;
    members.reserve(countOf(set));
    for (const NodeRows& rows : set) {
        for (const int row : rows.rows)
            members.push_back({&rows, row});
    }
    if (set.size() > 1)
        std::ranges::stable_sort(members,
            [](const SetMember& left, const SetMember& right) { return std::is_lt(compareInTree(left, right)); });
    return members;
}

std::size_t countOf(const NodeSet& set)
{
    std::size_t count = 0;
    for (const NodeRows& rows : set)
        count += rows.rows.size();
    return count;
}

} // namespace meridane
