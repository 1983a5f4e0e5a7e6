#include "meridane/scene/edit/ChildrenPlan.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace meridane {

void ChildrenPlan::remove(NxGroup& group, std::span<const int> rows)
{
    std::vector<int>& leaving = planOf(group).leaving;
    std::vector<int> all;
    all.reserve(leaving.size() + rows.size());
    std::ranges::set_union(leaving, rows, std::back_inserter(all));
    leaving = std::move(all);
}

void ChildrenPlan::remove(const NodeSet& set)
{
    for (const NodeRows& rows : set)
        remove(rows.group(), rows.rows);
}

void ChildrenPlan::insert(NxGroup& group, int index, std::span<NxNode* const> nodes)
{
    std::vector<NxRef<NxNode>>& coming = planOf(group).coming[index];
    coming.insert(coming.end(), nodes.begin(), nodes.end());
}

int ChildrenPlan::indexAfter(const NxGroup& group, int index) const
{
    const auto found = m_numbers.find(&group);
    if (found == m_numbers.end())
        return index;
    const GroupPlan& plan = m_plans[found->second];
    auto after = static_cast<std::ptrdiff_t>(index);
    after -= std::ranges::lower_bound(plan.leaving, index) - plan.leaving.begin();
    for (auto place = plan.coming.begin(); place != plan.coming.lower_bound(index); ++place)
        after += std::ssize(place->second);
    return static_cast<int>(after);
}

NxSceneChanges ChildrenPlan::changes() const
{
    NxSceneChanges changes;
    for (const GroupPlan& plan : m_plans) {
        NxSceneChanges::ChildrenChange change = changeOf(plan);
        if (!change.children.empty() || change.before + change.after < plan.group->getNumChildren())
            changes.add(std::move(change));
    }
    return changes;
}

ChildrenPlan::GroupPlan& ChildrenPlan::planOf(NxGroup& group)
{
    const auto [number, isNew] = m_numbers.try_emplace(&group, m_plans.size());
    if (isNew)
        m_plans.push_back({NxRef<NxGroup>(&group), {}, {}});
    return m_plans[number->second];
}

NxSceneChanges::ChildrenChange ChildrenPlan::changeOf(const GroupPlan& plan)
{
    const std::span<NxNode* const> present = plan.group->getChildren();
    const int count = static_cast<int>(present.size());
    int first = count;
    int end = 0;
    if (!plan.leaving.empty()) {
        first = plan.leaving.front();
        end = plan.leaving.back() + 1;
    }
    if (!plan.coming.empty()) {
        first = std::min(first, plan.coming.begin()->first);
        end = std::max(end, plan.coming.rbegin()->first);
    }
    NxSceneChanges::ChildrenChange change{plan.group, first, count - end, {}};
    change.children.reserve(static_cast<std::size_t>(std::max(0, end - first)));
    auto leaving = plan.leaving.begin();
    auto coming = plan.coming.begin();
    for (int index = first; index <= end; ++index) {
        if (coming != plan.coming.end() && coming->first == index) {
            change.children.insert(change.children.end(), coming->second.begin(), coming->second.end());
            ++coming;
        }
        if (index == end)
            break;
        if (leaving != plan.leaving.end() && *leaving == index)
            ++leaving;
        else
            change.children.emplace_back(present[static_cast<std::size_t>(index)]);
    }
    // What begins or ends as it is stays out of it.
    std::size_t same = 0;
    while (first + static_cast<int>(same) < end && same < change.children.size()
        && change.children[same].get() == present[static_cast<std::size_t>(first) + same])
        ++same;
    change.children.erase(change.children.begin(), change.children.begin() + static_cast<std::ptrdiff_t>(same));
    change.before += static_cast<int>(same);
    while (!change.children.empty() && change.before < end
        && change.children.back().get() == present[static_cast<std::size_t>(end - 1)]) {
        change.children.pop_back();
        --end;
        ++change.after;
    }
    return change;
}

} // namespace meridane
