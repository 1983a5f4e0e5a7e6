#include "meridane/scene/journal/detail/PlaceSnapshots.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <algorithm>

namespace meridane {

void PlaceSnapshots::add(std::span<const std::unique_ptr<ChangeRecord>> records)
{
    for (const auto& record : records)
        add(*record);
}

void PlaceSnapshots::add(const ChangeRecord& record)
{
    switch (record.kind()) {
    case ChangeRecord::Kind::Value:
    case ChangeRecord::Kind::Rows:
        if (auto& value = m_values[record.field()]; !value)
            value = record.field()->recordOfValue();
        break;
    case ChangeRecord::Kind::Ignored:
        m_ignored[record.field()] = record.field()->isIgnored();
        break;
    case ChangeRecord::Kind::Name:
        m_names[&record.node()] = record.node().getName();
        break;
    case ChangeRecord::Kind::Children: {
        const auto& group = static_cast<const NxGroup&>(record.node());
        m_children[&group].assign(group.getChildren().begin(), group.getChildren().end());
        break;
    }
    }
}

bool PlaceSnapshots::areSameAsNow() const
{
    const auto isSame = [](const auto& places, const auto& test) {
        return std::ranges::all_of(places, [&test](const auto& entry) { return test(*entry.first, entry.second); });
    };
    return isSame(m_values, [](const NxField&, const auto& value) { return value->isSameAsNow(); })
        && isSame(m_ignored, [](const NxField& field, bool ignored) { return field.isIgnored() == ignored; })
        && isSame(m_names, [](const NxFieldContainer& node, const VbString& name) { return node.getName() == name; })
        && isSame(m_children, [](const NxGroup& group, const std::vector<NxNode*>& children) {
               const auto present = group.getChildren();
               return std::equal(present.begin(), present.end(), children.begin(), children.end());
           });
}

} // namespace meridane
