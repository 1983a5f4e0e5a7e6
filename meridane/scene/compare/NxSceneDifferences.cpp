#include "meridane/scene/compare/NxSceneDifferences.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/compare/ShortText.h"
#include "meridane/scene/compare/detail/FieldComparison.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/text/ValueText.h"

#include <utility>

namespace {

using Side = NxSceneDifferences::Side;

std::string nodeCountText(const char* className, std::uint32_t count)
{
    if (count == 1)
        return className;
    return std::string(className) + " with " + std::to_string(count - 1)
        + (count == 2 ? " node in it" : " nodes in it");
}

std::string quoted(const VbString& name)
{
    std::string text;
    meridane::writeValue(text, name);
    return text;
}

} // namespace

const char* NxSceneDifferences::kindName(Kind kind)
{
    switch (kind) {
    case Kind::Added:
        return "added";
    case Kind::Removed:
        return "removed";
    case Kind::UseAdded:
        return "use added";
    case Kind::UseRemoved:
        return "use removed";
    case Kind::Moved:
        return "moved";
    case Kind::Reordered:
        return "reordered";
    case Kind::Sharing:
        return "sharing";
    case Kind::Renamed:
        return "renamed";
    case Kind::Class:
        return "class";
    case Kind::Value:
        return "value";
    case Kind::Ignored:
        break;
    }
    return "ignored";
}

const std::string& NxSceneDifferences::path(const NxSceneDifference& difference) const
{
    const NxComparedNode& compared = node(difference);
    return compared.left ? compared.leftPath : compared.rightPath;
}

std::string NxSceneDifferences::fieldName(const NxSceneDifference& difference) const
{
    const bool isLeft = difference.left.index != NxSceneDifference::Field::none;
    const NxSceneDifference::Field field = isLeft ? difference.left : difference.right;
    if (field.index == NxSceneDifference::Field::none)
        return {};
    NxNode& owner = isLeft ? *node(difference).left : *node(difference).right;
    if (!field.isUnknown)
        return owner.getFieldData()->getFieldName(field.index).getString();
    const NxFieldContainer::UnknownField* const unknown = meridane::unknownField(owner, field);
    return unknown == nullptr ? std::string() : unknown->name;
}

NxField* NxSceneDifferences::field(const NxSceneDifference& difference, Side side) const
{
    const NxRef<NxNode>& owner = side == Side::Left ? node(difference).left : node(difference).right;
    const NxSceneDifference::Field field = side == Side::Left ? difference.left : difference.right;
    return owner ? meridane::knownField(*owner, field) : nullptr;
}

std::string NxSceneDifferences::text(const NxSceneDifference& difference, Side side, std::size_t length) const
{
    const bool isLeft = side == Side::Left;
    const NxComparedNode& compared = node(difference);
    const NxRef<NxNode>& owner = isLeft ? compared.left : compared.right;
    if (!owner)
        return {};
    const std::uint32_t number = isLeft ? difference.leftNumber : difference.rightNumber;
    switch (difference.kind) {
    case Kind::Added:
    case Kind::Removed:
        return nodeCountText(owner->getClassName(), number);
    case Kind::UseAdded:
    case Kind::UseRemoved:
    case Kind::Class:
        return owner->getClassName();
    case Kind::Moved:
        return isLeft ? compared.leftPath : compared.rightPath;
    case Kind::Reordered:
        return std::to_string(number);
    case Kind::Sharing:
        return m_texts[number];
    case Kind::Renamed:
        return quoted(owner->getName());
    case Kind::Value:
    case Kind::Ignored:
        break;
    }
    return valueText(difference, side, length);
}

std::string NxSceneDifferences::valueText(const NxSceneDifference& difference, Side side, std::size_t length) const
{
    const Side otherSide = side == Side::Left ? Side::Right : Side::Left;
    const NxRef<NxNode>& owner = side == Side::Left ? node(difference).left : node(difference).right;
    const NxRef<NxNode>& otherOwner = side == Side::Left ? node(difference).right : node(difference).left;
    const auto unknown = [](const NxRef<NxNode>& holder, NxSceneDifference::Field place) {
        return holder ? meridane::unknownField(*holder, place) : nullptr;
    };
    const NxField* const known = field(difference, side);
    const auto* const raw = unknown(owner, side == Side::Left ? difference.left : difference.right);
    if (known == nullptr && raw == nullptr)
        return {};
    if (difference.kind == Kind::Ignored)
        return (known != nullptr ? known->isIgnored() : raw->ignored) ? "true" : "false";
    if (known != nullptr)
        return meridane::shortValue(*known, field(difference, otherSide), length);
    const auto* const otherRaw = unknown(otherOwner, side == Side::Left ? difference.right : difference.left);
    return meridane::shortText(raw->text, otherRaw == nullptr ? std::string_view() : otherRaw->text, length);
}

std::uint32_t NxSceneDifferences::addNode(NxComparedNode node)
{
    m_nodes.push_back(std::move(node));
    return static_cast<std::uint32_t>(m_nodes.size() - 1);
}

std::uint32_t NxSceneDifferences::addText(std::string text)
{
    m_texts.push_back(std::move(text));
    return static_cast<std::uint32_t>(m_texts.size() - 1);
}
