// Hides instances of meshes: their boxes leave the tree of boxes, so they are neither drawn nor framed.

#include "meridane/gl/places/detail/PlacedScene.h"

#include <utility>

namespace meridane {

void PlacedScene::setVisibility(NxNodeVisibility visibility)
{
    m_visibility = std::move(visibility);
    ++m_structure;
    ++m_revision;
    struct Step {
        Id place;
        NxNodeVisibility::State state;
    };
    std::vector<Step> waiting{{topPlace, {}}};
    while (!waiting.empty()) {
        const Step step = waiting.back();
        waiting.pop_back();
        const Place& place = m_table.place(step.place);
        NxNodeVisibility::State state = step.state;
        if (place.group != nullptr && place.group->node() != nullptr)
            state = m_visibility.below(state, *place.group->node());
        for (Id id = place.firstItem; id != noId; id = m_table.item(id).nextInPlace) {
            const Item& item = m_table.item(id);
            const NxNode* const mesh = item.mesh->node();
            const bool isVisible = mesh != nullptr && m_visibility.shows(m_visibility.below(state, *mesh));
            m_tree.set(id, isVisible ? boundsOf(item) : NxBounds());
        }
        for (Id id = place.firstChild; id != noId; id = m_table.place(id).nextSibling)
            waiting.push_back({id, state});
    }
}

bool PlacedScene::isShown(Id id) const
{
    if (m_visibility.showsAll())
        return true;
    const Item& item = m_table.item(id);
    NxNodeVisibility::State state;
    const auto add = [&](const NodeRecord* record) {
        if (record != nullptr && record->node() != nullptr)
            state = m_visibility.below(state, *record->node());
    };
    add(item.mesh);
    for (Id place = item.place; place != noId; place = m_table.place(place).parent)
        add(m_table.place(place).group);
    return m_visibility.shows(state);
}

void PlacedScene::updateBox(Id id)
{
    m_tree.set(id, isShown(id) ? boundsOf(m_table.item(id)) : NxBounds());
}

} // namespace meridane
