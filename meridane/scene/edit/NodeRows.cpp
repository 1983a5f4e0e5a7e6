#include "meridane/scene/edit/NodeRows.h"

#include <algorithm>
#include <compare>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace meridane {

namespace {

/// Finds the groups of a set that are below others of its children. Looks at no child itself, only at its address: to
/// ask a hundred thousand nodes for their children would take longer than the rest of an edit.
class GroupsOfSet {
public:
    explicit GroupsOfSet(const NodeSet& set)
    {
        if (set.size() < 2)
            return; // a path never contains the children of its own last group
        for (const NodeRows& rows : set) {
            for (std::size_t i = 0; i + 1 < rows.path.size(); ++i)
                m_steps[rows.path[i]].insert({rows.path[i + 1], false});
        }
        for (const NodeRows& rows : set) {
            const auto steps = m_steps.find(&rows.group());
            if (steps == m_steps.end())
                continue;
            for (const int row : rows.rows) {
                const auto step = steps->second.find(rows.group().getChild(row));
                if (step != steps->second.end())
                    step->second = true;
            }
        }
    }

    /// Whether one of the groups of the path is itself in the set.
    [[nodiscard]] bool hasOneOf(const std::vector<NxGroup*>& path) const
    {
        if (m_steps.empty())
            return false;
        for (std::size_t i = 0; i + 1 < path.size(); ++i) {
            if (m_steps.at(path[i]).at(path[i + 1]))
                return true;
        }
        return false;
    }

private:
    /// The steps of all paths from a group to a group in it, and whether that one is in the set.
    std::unordered_map<const NxGroup*, std::unordered_map<const NxNode*, bool>> m_steps;
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

bool isBefore(const SetMember& left, const SetMember& right)
{
    return std::is_lt(compareInTree(left, right));
}

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
    // Mostly one group follows the other. Only where one is between two children of another are the rows mixed.
    bool isInOrder = true;
    for (std::size_t i = 0, first = 0; i + 1 < set.size(); ++i) {
        first += set[i].rows.size();
        isInOrder
            = isInOrder && (first == 0 || first == members.size() || isBefore(members[first - 1], members[first]));
    }
    if (!isInOrder)
        std::ranges::stable_sort(members, isBefore);
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
