#include "meridane/scene/nodes/NxGroup.h"

#include "meridane/scene/fields/ChangeRecorder.h"
#include "meridane/scene/nodes/ChildrenRecord.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <unordered_set>

NX_NODE_SOURCE(NxGroup, NxNode, "Group", "A node that holds other nodes, in order.")

namespace {

NxGroup* asGroup(NxNode* node)
{
    return node->isOfType(NxGroup::getClassTypeId()) ? static_cast<NxGroup*>(node) : nullptr;
}

/// Makes room for one more, so that adding it can't fail.
void makeRoom(std::vector<NxNode*>& nodes)
{
    if (nodes.size() == nodes.capacity())
        nodes.reserve(2 * nodes.size() + 1);
}

/// Of the nodes that are to become children of a group, those that may contain it: they have children, and aren't in
/// the group already.
std::vector<NxNode*> nodesToSearch(std::span<NxNode* const> nodes, std::span<NxNode* const> present)
{
    const auto hasChildren = [](const NxNode* node) { return !node->getChildren().empty(); };
    std::vector<NxNode*> result;
    std::ranges::copy_if(nodes, std::back_inserter(result), hasChildren);
    if (result.empty() || present.empty())
        return result;
    std::unordered_set<const NxNode*> known;
    std::ranges::copy_if(present, std::inserter(known, known.end()), hasChildren);
    std::erase_if(result, [&known](const NxNode* node) { return known.contains(node); });
    return result;
}

} // namespace

NxGroup::~NxGroup()
{
    noteStructureChange();
    // Nodes without other references are destroyed from the bottom up, without recursion and without allocating memory:
    // on the way down, the entry of the child in its group's list is replaced by the group above.
    NxGroup* group = this;
    NxGroup* above = nullptr;
    for (;;) {
        if (!group->m_children.empty()) {
            NxNode* child = group->m_children.back();
            NxGroup* childGroup = child->getRefCount() == 1 ? asGroup(child) : nullptr;
            if (childGroup == nullptr || childGroup->m_children.empty()) {
                group->m_children.pop_back();
                release(child);
            } else {
                group->m_children.back() = above;
                above = group;
                group = childGroup;
            }
        } else if (group != this) {
            group->unref();
            group = above;
            above = static_cast<NxGroup*>(group->m_children.back());
            group->m_children.pop_back();
        } else {
            return;
        }
    }
}

std::span<NxNode* const> NxGroup::getChildren() const
{
    return m_children;
}

NxNode* NxGroup::getChild(int index) const
{
    return index >= 0 && index < getNumChildren() ? m_children[static_cast<std::size_t>(index)] : nullptr;
}

int NxGroup::findChild(const NxNode* node) const
{
    const auto place = std::find(m_children.begin(), m_children.end(), node);
    return place == m_children.end() ? -1 : static_cast<int>(place - m_children.begin());
}

bool NxGroup::addChild(NxNode* node)
{
    return insertChild(node, getNumChildren());
}

bool NxGroup::insertChild(NxNode* node, int index)
{
    if (node == nullptr || node == this || index < 0 || index > getNumChildren())
        return false;
    // A group without parents closes no cycle, so that scenes can be built from the bottom up without a search.
    if (m_places > 0 && meridane::isAbove(std::span(&node, 1), this))
        return false;
    makeRoom(m_children);
    const auto place = static_cast<std::size_t>(index);
    recordChildren(place, place, std::span(&node, 1));
    m_children.insert(m_children.begin() + index, node);
    hold(node);
    noteChildrenChange();
    touch();
    return true;
}

bool NxGroup::removeChild(int index)
{
    NxNode* child = getChild(index);
    if (child == nullptr)
        return false;
    const auto place = static_cast<std::size_t>(index);
    recordChildren(place, place + 1, {});
    m_children.erase(m_children.begin() + index);
    noteChildrenChange();
    touch();
    release(child);
    return true;
}

void NxGroup::removeAllChildren()
{
    if (m_children.empty())
        return;
    recordChildren(0, m_children.size(), {});
    std::vector<NxNode*> children;
    children.swap(m_children);
    noteChildrenChange();
    touch();
    for (NxNode* child : children)
        release(child);
}

bool NxGroup::replaceChildren(int index, int count, std::span<NxNode* const> nodes)
{
    if (index < 0 || count < 0 || index > getNumChildren() || count > getNumChildren() - index)
        return false;
    const auto first = static_cast<std::size_t>(index);
    const std::size_t end = first + static_cast<std::size_t>(count);
    const std::span<NxNode* const> present = m_children;
    const auto isRefused = [this](const NxNode* node) { return node == nullptr || node == this; };
    if (std::ranges::any_of(nodes, isRefused)
        || (m_places > 0 && meridane::isAbove(nodesToSearch(nodes, present.subspan(first, end - first)), this)))
        return false;
    if (count == 0 && nodes.empty())
        return true;
    std::vector<NxNode*> children;
    children.reserve(present.size() - (end - first) + nodes.size());
    children.assign(present.begin(), present.begin() + index);
    children.insert(children.end(), nodes.begin(), nodes.end());
    children.insert(children.end(), present.begin() + index + count, present.end());
    recordChildren(first, end, nodes);
    std::ranges::for_each(nodes, hold);
    children.swap(m_children);
    noteChildrenChange();
    touch();
    std::ranges::for_each(std::span(children).subspan(first, end - first), release);
    return true;
}

void NxGroup::recordChildren(std::size_t first, std::size_t end, std::span<NxNode* const> nodes)
{
    meridane::ChangeRecorder* const recorder = meridane::ChangeRecorder::of(this);
    if (recorder == nullptr)
        return;
    auto record = std::make_unique<meridane::ChildrenRecord>(
        *this, first, nodes.size(), std::span<NxNode* const>(m_children).subspan(first, end - first));
    recorder->follow(nodes);
    recorder->add(std::move(record));
}

void NxGroup::appendUnchecked(NxNode* node, NxGroup* group)
{
    m_children.push_back(node);
    noteChildrenChange();
    node->ref();
    if (group != nullptr)
        ++group->m_places;
}

void NxGroup::noteChildrenChange() noexcept
{
    noteStructureChange();
    m_childrenRevision = getStructureRevision();
}

void NxGroup::hold(NxNode* node)
{
    if (NxGroup* group = asGroup(node))
        ++group->m_places;
    node->ref();
}

void NxGroup::release(NxNode* node)
{
    if (NxGroup* group = asGroup(node))
        --group->m_places;
    node->unref();
}
