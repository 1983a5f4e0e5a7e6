#include "meridane/scene/compare/NxSceneChanges.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <algorithm>
#include <iterator>
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

/// The children of a group that are to be replaced: the first, and how many.
struct Replaced {
    explicit Replaced(const NxSceneChanges::ChildrenChange& change)
    {
        const int size = change.group->getNumChildren();
        first = std::min(change.before, size);
        count = size - first - std::min(change.after, size - first);
    }

    int first;
    int count;
};

std::vector<NxRef<NxNode>> replacedChildren(const NxGroup& group, const Replaced& replaced)
{
    const auto children = group.getChildren().subspan(
        static_cast<std::size_t>(replaced.first), static_cast<std::size_t>(replaced.count));
    return {children.begin(), children.end()};
}

std::vector<NxNode*> pointersOf(const std::vector<NxRef<NxNode>>& nodes)
{
    std::vector<NxNode*> pointers;
    pointers.reserve(nodes.size());
    for (const NxRef<NxNode>& node : nodes)
        pointers.push_back(node.get());
    return pointers;
}

/// Takes the children that are to be replaced out of the group.
std::vector<NxRef<NxNode>> takeChildren(const NxSceneChanges::ChildrenChange& change)
{
    const Replaced replaced(change);
    std::vector<NxRef<NxNode>> children = replacedChildren(*change.group, replaced);
    change.group->replaceChildren(replaced.first, replaced.count, {});
    return children;
}

void putChildren(const NxSceneChanges::ChildrenChange& change)
{
    change.group->replaceChildren(
        std::min(change.before, change.group->getNumChildren()), 0, pointersOf(change.children));
}

} // namespace

std::vector<std::vector<NxRef<NxNode>>> NxSceneChanges::change()
{
    for (const NodeChange& change : m_nodes)
        exchangeNode(change);
    std::vector<std::vector<NxRef<NxNode>>> taken;
    taken.reserve(m_children.size());
    if (m_children.size() == 1) {
        const ChildrenChange& only = m_children.front();
        const Replaced replaced(only);
        taken.push_back(replacedChildren(*only.group, replaced));
        only.group->replaceChildren(replaced.first, replaced.count, pointersOf(only.children));
        return taken;
    }
    // No group gets a child before all others have lost theirs: a group that is moved into one of those below it would
    // contain itself for a moment.
    for (const ChildrenChange& change : m_children)
        taken.push_back(takeChildren(change));
    for (const ChildrenChange& change : m_children)
        putChildren(change);
    return taken;
}

void NxSceneChanges::exchange()
{
    std::vector<std::vector<NxRef<NxNode>>> taken = change();
    for (std::size_t i = 0; i < m_children.size(); ++i)
        m_children[i].children = std::move(taken[i]);
}

std::vector<NxRef<NxNode>> NxSceneChanges::apply()
{
    std::vector<std::vector<NxRef<NxNode>>> taken = change();
    // They are moved, since it takes time to count the references of a hundred thousand nodes.
    std::vector<NxRef<NxNode>> nodes;
    const auto append = [&nodes](std::vector<NxRef<NxNode>>& some) {
        if (nodes.empty())
            nodes = std::move(some);
        else
            nodes.insert(nodes.end(), std::make_move_iterator(some.begin()), std::make_move_iterator(some.end()));
    };
    for (std::size_t i = 0; i < m_children.size(); ++i) {
        append(taken[i]);
        append(m_children[i].children);
    }
    *this = {};
    return nodes;
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
