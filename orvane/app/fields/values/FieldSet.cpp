#include "orvane/app/fields/values/FieldSet.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/scene/NodeName.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/list/NxMFEnum.h"
#include "meridane/scene/fields/single/NxSFEnum.h"

#include <QCoreApplication>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>

namespace {

/// The values of a field's enumeration; null for a field of another class.
const int* choicesOf(const NxField& field)
{
    int count = 0;
    int* values = nullptr;
    VbName* names = nullptr;
    if (const auto* const single = dynamic_cast<const NxSFEnum*>(&field))
        single->getEnums(count, values, names);
    else if (const auto* const list = dynamic_cast<const NxMFEnum*>(&field))
        list->getEnums(count, values, names);
    return values;
}

} // namespace

FieldSet::FieldSet(NxField& field)
    : m_node(field.getContainer())
    , m_fields(std::make_shared<const std::vector<NxField*>>(1, &field))
{
}

FieldSet::FieldSet(NxField& first, const std::shared_ptr<const Nodes>& nodes)
    : m_nodes(nodes)
{
    auto fields = std::make_shared<std::vector<NxField*>>();
    fields->reserve(nodes->size());
    fields->push_back(&first);
    std::vector<std::pair<const NxFieldData*, int>> indexes; // in each class, of which there are few
    for (const NxRef<NxFieldContainer>& node : *nodes) {
        if (node.get() == first.getContainer())
            continue;
        const NxFieldData* const data = node->getFieldData();
        auto found = std::ranges::find(indexes, data, [](const auto& entry) { return entry.first; });
        if (found == indexes.end())
            found = indexes.insert(found, {data, indexOfLike(*data, first)});
        NxField* const field = data->getField(node.get(), found->second);
        if (field == nullptr) {
            m_nodes.reset();
            return;
        }
        fields->push_back(field);
    }
    m_fields = std::move(fields);
}

int FieldSet::indexOfLike(const NxFieldData& data, const NxField& field)
{
    const int index = data.getIndex(field.getContainer()->getFieldName(&field));
    const NxField* const like = data.getDefault(index);
    const bool isLike
        = like != nullptr && like->getTypeId() == field.getTypeId() && choicesOf(*like) == choicesOf(field);
    return isLike ? index : -1;
}

std::span<NxField* const> FieldSet::fields() const noexcept
{
    return isEmpty() ? std::span<NxField* const>() : std::span<NxField* const>(*m_fields);
}

QString FieldSet::name() const
{
    if (isEmpty() || first().getContainer() == nullptr)
        return {};
    const NxFieldContainer& node = *first().getContainer();
    const QString field = orvane::toQString(node.getFieldName(&first()));
    if (count() == 1)
        return orvane::nodeName(node) + u'.' + field;
    return QCoreApplication::translate("FieldSet", "%1 of %L2 nodes").arg(field).arg(count());
}

bool FieldSet::isMixed() const
{
    return std::ranges::any_of(fields(), [this](const NxField* field) { return !field->isSame(first()); });
}

bool FieldSet::isMixed(int component) const
{
    const auto* const components = isEmpty() ? nullptr : meridane::FieldComponents::of(first());
    if (components == nullptr)
        return isMixed();
    const auto bits = [&](const NxField& field) {
        return std::bit_cast<std::uint64_t>(components->get(field, 0, component)); // so that a NaN equals itself
    };
    return std::ranges::any_of(
        fields(), [&, expected = bits(first())](const NxField* field) { return bits(*field) != expected; });
}

bool FieldSet::isChanged() const
{
    const NxFieldData* latest = nullptr; // neighbours are mostly of one class
    const NxField* original = nullptr;
    for (const NxField* const field : fields()) {
        NxFieldContainer* const node = field->getContainer();
        const NxFieldData* const data = node != nullptr ? node->getFieldData() : nullptr;
        if (data == nullptr)
            return true;
        if (data != latest) {
            latest = data;
            original = data->getDefault(data->getIndex(node, field));
        }
        if (original == nullptr || !field->isSame(*original))
            return true;
    }
    return false;
}

bool FieldSet::isIgnored() const
{
    return !isEmpty() && std::ranges::all_of(fields(), [](const NxField* field) { return field->isIgnored(); });
}

bool FieldSet::isIgnoredMixed() const
{
    return std::ranges::any_of(
        fields(), [this](const NxField* field) { return field->isIgnored() != first().isIgnored(); });
}

bool operator==(const FieldSet& left, const FieldSet& right)
{
    return std::ranges::equal(left.fields(), right.fields());
}
