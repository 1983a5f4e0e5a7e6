#include "meridane/scene/check/detail/MendRecorder.h"

#include "meridane/scene/fields/NxField.h"

#include <algorithm>
#include <utility>

namespace meridane {
namespace {

std::vector<NxRef<NxNode>> childrenOf(const NxGroup& group)
{
    const auto children = group.getChildren();
    return {children.begin(), children.end()};
}

std::vector<NxRef<NxNode>> childrenExcept(const NxGroup& group, const std::vector<int>& places)
{
    std::vector<NxRef<NxNode>> kept;
    std::size_t next = 0;
    const auto children = group.getChildren();
    for (std::size_t i = 0; i < children.size(); ++i) {
        if (next < places.size() && static_cast<std::size_t>(places[next]) == i)
            ++next;
        else
            kept.emplace_back(children[i]);
    }
    return kept;
}

void setChildren(NxGroup& group, const std::vector<NxRef<NxNode>>& children)
{
    std::vector<NxNode*> nodes;
    nodes.reserve(children.size());
    for (const NxRef<NxNode>& child : children)
        nodes.push_back(child.get());
    group.replaceChildren(0, group.getNumChildren(), nodes);
}

} // namespace

void MendRecorder::keepValue(NxField& field)
{
    if (!m_keeps)
        return;
    Write& write = m_writes.emplace_back();
    write.field = &field;
    write.record = field.recordOfValue();
}

void MendRecorder::rename(NxNode& node, const VbString& name)
{
    if (m_keeps) {
        Write& write = m_writes.emplace_back();
        write.node = &node;
        write.name = node.getName();
    }
    node.setName(name);
}

void MendRecorder::removeChildren(NxGroup& group, const std::vector<int>& places)
{
    if (m_keeps) {
        Write& write = m_writes.emplace_back();
        write.group = &group;
        write.children = childrenOf(group);
    }
    constexpr int mostRuns = 64;
    int runs = 0;
    for (std::size_t i = 0; i < places.size(); ++i)
        runs += i == 0 || places[i] != places[i - 1] + 1 ? 1 : 0;
    if (runs > mostRuns) {
        // Each run would move all children behind it.
        setChildren(group, childrenExcept(group, places));
        return;
    }
    for (std::size_t end = places.size(); end > 0;) {
        std::size_t begin = end - 1;
        while (begin > 0 && places[begin - 1] + 1 == places[begin])
            --begin;
        group.replaceChildren(places[begin], static_cast<int>(end - begin), {});
        end = begin;
    }
}

void MendRecorder::undo()
{
    std::for_each(m_writes.rbegin(), m_writes.rend(), exchange);
}

void MendRecorder::redo()
{
    for (Write& write : m_writes)
        exchange(write);
}

void MendRecorder::exchange(Write& write)
{
    if (write.field != nullptr) {
        write.field->exchangeValue(*write.record);
    } else if (write.node) {
        const VbString name = write.node->getName();
        write.node->setName(write.name);
        write.name = name;
    } else {
        std::vector<NxRef<NxNode>> children = childrenOf(*write.group);
        setChildren(*write.group, write.children);
        write.children = std::move(children);
    }
}

} // namespace meridane
