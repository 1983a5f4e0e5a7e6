#include "meridane/scene/nodes/ChildrenRecord.h"

#include <algorithm>
#include <utility>

namespace meridane {

ChildrenRecord::ChildrenRecord(NxGroup& group, std::size_t start, std::size_t count, std::span<NxNode* const> replaced)
    : ChangeRecord(Kind::Children, group)
    , m_start(start)
    , m_count(count)
    , m_children(replaced.begin(), replaced.end())
{
}

void ChildrenRecord::exchange()
{
    std::vector<NxNode*>& list = group().m_children;
    const auto first = list.begin() + static_cast<std::ptrdiff_t>(m_start);
    const auto end = first + static_cast<std::ptrdiff_t>(m_count);
    // All memory is allocated before anything changes.
    std::vector<NxRef<NxNode>> present(first, end);
    std::vector<NxNode*> children;
    children.reserve(list.size() - m_count + m_children.size());
    children.assign(list.begin(), first);
    for (const auto& child : m_children)
        children.push_back(child.get());
    children.insert(children.end(), end, list.end());
    for (const auto& child : m_children)
        NxGroup::hold(child.get());
    list.swap(children);
    for (const auto& child : present)
        NxGroup::release(child.get());
    m_count = m_children.size();
    m_children = std::move(present);
    group().noteChildrenChange();
}

bool ChildrenRecord::isSameAsNow() const
{
    const auto present = group().getChildren().subspan(m_start, m_count);
    const auto isSame = [](const NxNode* child, const NxRef<NxNode>& other) { return child == other.get(); };
    return std::equal(present.begin(), present.end(), m_children.begin(), m_children.end(), isSame);
}

std::size_t ChildrenRecord::bytes() const
{
    return sizeof(*this) + m_children.size() * sizeof(NxRef<NxNode>);
}

} // namespace meridane
