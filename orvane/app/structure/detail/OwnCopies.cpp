#include "orvane/app/structure/detail/OwnCopies.h"

#include "meridane/scene/edit/NodeCopier.h"

#include <utility>

namespace orvane {

bool OwnCopies::add(const meridane::NodeRows& rows, int row)
{
    std::vector<NxGroup*> path{rows.path.front()};
    std::vector<int> place;
    bool isCopy = false;
    for (std::size_t i = 1; i < rows.path.size(); ++i) {
        NxGroup& group = *rows.path[i];
        place.push_back(rows.places[i - 1]);
        if (!isCopy && m_uses.count(group) < 2) {
            path.push_back(&group);
            continue;
        }
        const auto known = m_groups.find(place);
        const NxRef<NxGroup> copy = known != m_groups.end() ? known->second : copyOf(place, group);
        if (!copy)
            return false;
        if (known == m_groups.end())
            put(*path.back(), isCopy, place.back(), *copy);
        isCopy = true;
        path.push_back(copy.get());
    }
    NxNode* const node = rows.group().getChild(row);
    if (isCopy || m_uses.count(*node) > 1) {
        meridane::NodeCopier copier;
        const NxRef<NxNode> copy = copier.copy(*node);
        if (!copy)
            return false;
        put(*path.back(), isCopy, row, *copy);
        m_isEmpty = false;
    }
    if (m_selection.empty() || m_selection.back().path != path)
        m_selection.push_back({std::move(path), rows.places, {}});
    m_selection.back().rows.push_back(row);
    return true;
}

NxRef<NxGroup> OwnCopies::copyOf(const std::vector<int>& place, NxGroup& group)
{
    const NxRef<NxNode> copied = meridane::NodeCopier::copyAlone(group);
    auto* const copy = dynamic_cast<NxGroup*>(copied.get());
    if (copy == nullptr || !copy->replaceChildren(0, 0, group.getChildren()))
        return {};
    return m_groups.emplace(place, copy).first->second;
}

void OwnCopies::put(NxGroup& above, bool isCopy, int row, NxNode& node)
{
    NxNode* const added = &node;
    if (isCopy) {
        above.replaceChildren(row, 1, std::span(&added, 1));
        return;
    }
    m_plan.remove(above, std::span(&row, 1));
    m_plan.insert(above, row, std::span(&added, 1));
}

} // namespace orvane
