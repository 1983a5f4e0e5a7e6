#include "meridane/scene/compare/detail/FieldComparison.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"

#include <algorithm>
#include <string_view>

namespace meridane {

namespace {

using Kind = NxSceneDifference::Kind;
using Field = NxSceneDifference::Field;

struct NamedField {
    std::string_view name;
    Field field;
};

bool isByName(const NamedField& left, const NamedField& right)
{
    return left.name < right.name;
}

/// The fields of a node by name; those of the same name in their order.
std::vector<NamedField> namedFields(NxNode& node, bool withKnown)
{
    std::vector<NamedField> fields;
    const NxFieldData* const data = node.getFieldData();
    for (int i = 0; withKnown && i < data->getNumFields(); ++i)
        fields.push_back({data->getFieldName(i).getString(), {i, false}});
    std::int32_t number = 0;
    for (const NxFieldContainer::UnknownField& field : node.getUnknownFields())
        fields.push_back({field.name, {number++, true}});
    std::stable_sort(fields.begin(), fields.end(), isByName);
    return fields;
}

bool isIgnored(NxNode& node, Field field)
{
    const NxField* const known = knownField(node, field);
    return known != nullptr ? known->isIgnored() : unknownField(node, field)->ignored;
}

std::string textOf(NxNode& node, Field field)
{
    const NxField* const known = knownField(node, field);
    if (known == nullptr)
        return unknownField(node, field)->text;
    VbString text;
    known->get(text);
    return std::string(text.view());
}

bool isWritten(NxNode& node, Field field)
{
    const NxField* const known = knownField(node, field);
    return known == nullptr || known->isIgnored() || !known->isDefault();
}

/// Compares two nodes and collects what differs.
class Comparison {
public:
    Comparison(NxNode& left, NxNode& right, std::vector<NxSceneDifference>& differences)
        : m_left(left)
        , m_right(right)
        , m_differences(differences)
    {
    }

    void run()
    {
        const NxFieldData* const data = m_left.getFieldData();
        const bool isOneClass = data == m_right.getFieldData();
        for (int i = 0; isOneClass && i < data->getNumFields(); ++i)
            compareKnown(*data, i);
        if (!isOneClass || !m_left.getUnknownFields().empty() || !m_right.getUnknownFields().empty())
            compareByName(namedFields(m_left, !isOneClass), namedFields(m_right, !isOneClass));
    }

private:
    void compareKnown(const NxFieldData& data, int index)
    {
        const NxField& left = *data.getField(&m_left, index);
        const NxField& right = *data.getField(&m_right, index);
        const Field field{index, false};
        if (!left.isSame(right))
            add(Kind::Value, field, field);
        if (left.isIgnored() != right.isIgnored())
            add(Kind::Ignored, field, field);
    }

    void compareByName(const std::vector<NamedField>& left, const std::vector<NamedField>& right)
    {
        const std::size_t start = m_differences.size();
        auto leftPlace = left.begin();
        auto rightPlace = right.begin();
        while (leftPlace != left.end() || rightPlace != right.end()) {
            if (rightPlace == right.end() || (leftPlace != left.end() && isByName(*leftPlace, *rightPlace)))
                addIfWritten((leftPlace++)->field, {});
            else if (leftPlace == left.end() || isByName(*rightPlace, *leftPlace))
                addIfWritten({}, (rightPlace++)->field);
            else
                compareNamed((leftPlace++)->field, (rightPlace++)->field);
        }
        std::stable_sort(m_differences.begin() + static_cast<std::ptrdiff_t>(start), m_differences.end(), isBefore);
    }

    // In the order of the left node; fields that only the right one has come last.
    static bool isBefore(const NxSceneDifference& first, const NxSceneDifference& second)
    {
        const auto key = [](const Field& field) { return std::pair(field.isUnknown, field.index); };
        const bool isFirstLeft = first.left.index != Field::none;
        const bool isSecondLeft = second.left.index != Field::none;
        if (isFirstLeft != isSecondLeft)
            return isFirstLeft;
        return isFirstLeft ? key(first.left) < key(second.left) : key(first.right) < key(second.right);
    }

    void addIfWritten(Field left, Field right)
    {
        if (left.index != Field::none ? isWritten(m_left, left) : isWritten(m_right, right))
            add(Kind::Value, left, right);
    }

    void compareNamed(Field left, Field right)
    {
        const NxField* const leftField = knownField(m_left, left);
        const NxField* const rightField = knownField(m_right, right);
        const bool isOneType
            = leftField != nullptr && rightField != nullptr && leftField->getTypeId() == rightField->getTypeId();
        const bool isSame = isOneType ? leftField->isSame(*rightField) : textOf(m_left, left) == textOf(m_right, right);
        if (!isSame)
            add(Kind::Value, left, right);
        if (isIgnored(m_left, left) != isIgnored(m_right, right))
            add(Kind::Ignored, left, right);
    }

    void add(Kind kind, Field left, Field right) { m_differences.push_back({kind, 0, left, right}); }

    NxNode& m_left;
    NxNode& m_right;
    std::vector<NxSceneDifference>& m_differences;
};

} // namespace

NxField* knownField(NxNode& node, NxSceneDifference::Field field)
{
    return field.isUnknown ? nullptr : node.getFieldData()->getField(&node, field.index);
}

const NxFieldContainer::UnknownField* unknownField(const NxNode& node, NxSceneDifference::Field field)
{
    const auto& fields = node.getUnknownFields();
    const auto index = static_cast<std::size_t>(field.index);
    return field.isUnknown && index < fields.size() ? &fields[index] : nullptr;
}

void compareFields(NxNode& left, NxNode& right, std::vector<NxSceneDifference>& differences)
{
    Comparison(left, right, differences).run();
}

} // namespace meridane
