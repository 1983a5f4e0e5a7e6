#include "orvane/app/structure/detail/EditTexts.h"

#include "orvane/app/scene/NodeName.h"

namespace orvane {

QString EditTexts::namesOf(std::span<NxNode* const> nodes)
{
    return nodes.size() == 1 ? nodeName(*nodes.front()) : tr("%1 nodes").arg(nodes.size());
}

QString EditTexts::namesOf(const Set& set)
{
    const std::size_t count = countOf(set);
    return count == 1 ? nodeName(set.front().first()) : tr("%1 nodes").arg(count);
}

QString EditTexts::remove(const Set& set)
{
    return tr("Remove %1").arg(namesOf(set));
}

QString EditTexts::duplicate(const Set& set)
{
    return tr("Duplicate %1").arg(namesOf(set));
}

QString EditTexts::group(const Set& set)
{
    return tr("Group %1").arg(namesOf(set));
}

QString EditTexts::ungroup(std::span<NxNode* const> groups)
{
    return groups.size() == 1 ? tr("Ungroup %1").arg(nodeName(*groups.front()))
                              : tr("Ungroup %1 groups").arg(groups.size());
}

QString EditTexts::makeOwn(const Set& set)
{
    return tr("Make own copy of %1").arg(namesOf(set));
}

QString EditTexts::reorder(const Set& set)
{
    return tr("Reorder %1").arg(namesOf(set));
}

QString EditTexts::move(const Set& set, const NxGroup& to, const NxGroup& scene)
{
    if (set.size() == 1 && &set.front().group() == &to)
        return reorder(set);
    if (&to == &scene)
        return tr("Move %1 to the top").arg(namesOf(set));
    return tr("Move %1 to %2").arg(namesOf(set), nodeName(to));
}

QString EditTexts::moveOut(const Set& set)
{
    if (set.size() > 1)
        return tr("Move %1 out of their groups").arg(namesOf(set));
    return tr("Move %1 out of %2").arg(namesOf(set), nodeName(set.front().group()));
}

QString EditTexts::moveIn(const Set& set)
{
    return tr("Move %1 into the group above").arg(namesOf(set));
}

QString EditTexts::share(std::span<NxNode* const> nodes, const NodeSpot& spot)
{
    if (spot.path.size() == 1)
        return tr("Use %1 at the top").arg(namesOf(nodes));
    return tr("Use %1 in %2").arg(namesOf(nodes), nodeName(spot.group()));
}

QString EditTexts::copy(const Set& set, const NxGroup& to, const NxGroup& scene)
{
    if (&to == &scene)
        return tr("Copy %1 to the top").arg(namesOf(set));
    return tr("Copy %1 to %2").arg(namesOf(set), nodeName(to));
}

QString EditTexts::cut(const Set& set)
{
    return tr("Cut %1").arg(namesOf(set));
}

QString EditTexts::paste(std::span<NxNode* const> nodes)
{
    return tr("Paste %1").arg(namesOf(nodes));
}

QString EditTexts::add(std::span<NxNode* const> nodes)
{
    return tr("Add %1").arg(namesOf(nodes));
}

QString EditTexts::notCopied(const NxNode& node)
{
    return tr("%1 can't be copied: its class makes no nodes, or the memory isn't enough.").arg(nodeName(node));
}

QString EditTexts::intoItself(const NxNode& node)
{
    return tr("%1 can't be put into itself or into a node below it.").arg(nodeName(node));
}

QString EditTexts::isFirst(const Set& set)
{
    return countOf(set) == 1 ? tr("%1 is the first node in its group.").arg(namesOf(set))
                             : tr("The selected nodes are the first ones in their groups.");
}

QString EditTexts::isLast(const Set& set)
{
    return countOf(set) == 1 ? tr("%1 is the last node in its group.").arg(namesOf(set))
                             : tr("The selected nodes are the last ones in their groups.");
}

QString EditTexts::isAtTop(const Set& set)
{
    return countOf(set) == 1 ? tr("%1 is in no group that it could leave.").arg(namesOf(set))
                             : tr("The selected nodes are in no groups that they could leave.");
}

QString EditTexts::hasNoGroupAbove(const Set& set)
{
    return countOf(set) == 1 ? tr("There is no group directly above %1 that could take it.").arg(namesOf(set))
                             : tr("There is no group directly above the selected nodes that could take them.");
}

QString EditTexts::isNoGroup(const Set& set)
{
    return countOf(set) == 1 ? tr("%1 is no group that can be dissolved.").arg(namesOf(set))
                             : tr("None of the selected nodes is a group that can be dissolved.");
}

QString EditTexts::isOwn(const Set& set)
{
    return countOf(set) == 1 ? tr("%1 is in one place only, so it needs no copy of its own.").arg(namesOf(set))
                             : tr("The selected nodes are in one place each, so they need no copies of their own.");
}

QString EditTexts::addedTransforms(int count)
{
    if (count == 0)
        return {};
    return count == 1 ? tr("A transform was added above the node, so that it keeps its place.")
                      : tr("%1 transforms were added above nodes, so that these keep their places.").arg(count);
}

} // namespace orvane
