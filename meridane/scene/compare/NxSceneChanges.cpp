#include "meridane/scene/compare/NxSceneChanges.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <algorithm>
#include <new>
#include <utility>

namespace {

/// A new node of the same class, or null if the class makes none.
NxRef<NxNode> sibling(const NxNode& node)
{
    return {static_cast<NxNode*>(static_cast<NxTypedObject*>(node.getTypeId().createInstance(nullptr)))};
}

void copy(NxField& to, const NxField& from)
{
    if (!to.copyFrom(from))
        throw std::bad_alloc();
}

void exchangeField(NxField& field, NxField& other, NxField* keeper)
{
    if (!field.isSame(other)) {
        if (keeper != nullptr)
            copy(*keeper, field);
        copy(field, other);
        if (keeper != nullptr)
            copy(other, *keeper);
    }
    const bool isIgnored = field.isIgnored();
    field.setIgnored(other.isIgnored() ? 1 : 0);
    other.setIgnored(isIgnored ? 1 : 0);
}

void exchangeNode(const NxSceneChanges::NodeChange& change)
{
    if (change.isRenamed) {
        const VbString name = change.node->getName();
        change.node->setName(change.other->getName());
        change.other->setName(name);
    }
    NxFieldData& data = *change.node->getFieldData();
    const NxRef<NxNode> keeper = change.fields.empty() ? NxRef<NxNode>() : sibling(*change.node);
    for (const int index : change.fields)
        exchangeField(*data.getField(change.node.get(), index), *data.getField(change.other.get(), index),
            keeper ? data.getField(keeper.get(), index) : nullptr);
}

/// Takes the children that are to be replaced out of the group.
std::vector<NxRef<NxNode>> takeChildren(const NxSceneChanges::ChildrenChange& change)
{
    const auto present = change.group->getChildren();
    const int size = static_cast<int>(present.size());
    const int first = std::min(change.before, size);
    const int count = size - first - std::min(change.after, size - first);
    const auto taken = present.subspan(static_cast<std::size_t>(first), static_cast<std::size_t>(count));
    std::vector<NxRef<NxNode>> children(taken.begin(), taken.end());
    change.group->replaceChildren(first, count, {});
    return children;
}

void putChildren(const NxSceneChanges::ChildrenChange& change)
{
    std::vector<NxNode*> children;
    children.reserve(change.children.size());
    for (const NxRef<NxNode>& child : change.children)
        children.push_back(child.get());
    const int size = change.group->getNumChildren();
    change.group->replaceChildren(std::min(change.before, size), 0, children);
}

} // namespace

void NxSceneChanges::exchange()
{
    for (const NodeChange& change : m_nodes)
        exchangeNode(change);
    // No group gets a child before all others have lost theirs: a group that is moved into one of those below it would
    // contain itself for a moment.
    std::vector<std::vector<NxRef<NxNode>>> taken;
    taken.reserve(m_children.size());
    for (const ChildrenChange& change : m_children)
        taken.push_back(takeChildren(change));
    for (std::size_t i = 0; i < m_children.size(); ++i) {
        putChildren(m_children[i]);
        m_children[i].children = std::move(taken[i]);
    }
}

NxNode* NxSceneChanges::replacementOf(const NxFieldContainer* node) const
{
    const auto found = std::ranges::find_if(
        m_replacements, [node](const Replacement& replacement) { return replacement.node.get() == node; });
    return found == m_replacements.end() ? nullptr : found->other.get();
}

std::vector<NxRef<NxNode>> NxSceneChanges::nodes() const
{
    std::vector<NxRef<NxNode>> nodes;
    for (const ChildrenChange& change : m_children) {
        const auto present = change.group->getChildren();
        const auto first = present.begin() + std::min<std::ptrdiff_t>(change.before, std::ssize(present));
        const auto last = std::max(first, present.end() - std::min<std::ptrdiff_t>(change.after, std::ssize(present)));
        nodes.insert(nodes.end(), first, last);
        nodes.insert(nodes.end(), change.children.begin(), change.children.end());
    }
    return nodes;
}
