#include "meridane/scene/file/detail/SiblingIndex.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <string>

namespace meridane {

SiblingIndex::SiblingIndex(const NxNode& parent)
    : m_parent(parent)
{
    m_indices.reserve(parent.getChildren().size());
}

bool SiblingIndex::gather(std::size_t count)
{
    const auto children = m_parent.getChildren();
    const std::size_t end = std::min(children.size(), m_indices.size() + count);
    while (m_indices.size() < end) {
        const NxNode& child = *children[m_indices.size()];
        if (!child.getName().isEmpty())
            noteName(static_cast<std::uint32_t>(m_indices.size()));
        noteClass(child);
    }
    return end == children.size();
}

ScenePathStep SiblingIndex::step(std::size_t place) const
{
    const NxNode& child = *m_parent.getChildren()[place];
    const std::string_view name = child.getName().view();
    if (!name.empty() && !m_repeated[slotOf(name)])
        return {std::string(name), -1};
    return {child.getClassName(), static_cast<int>(m_indices[place])};
}

void SiblingIndex::noteName(std::uint32_t place)
{
    if (m_names.empty()) {
        m_names.resize(std::bit_ceil(2 * m_parent.getChildren().size()));
        m_repeated.resize(m_names.size());
    }
    const std::size_t slot = slotOf(m_parent.getChildren()[place]->getName().view());
    if (m_names[slot] == 0)
        m_names[slot] = place + 1;
    else
        m_repeated[slot] = true;
}

void SiblingIndex::noteClass(const NxNode& child)
{
    // Consecutive nodes often have the same class.
    const char* const className = child.getClassName();
    if (className != m_lastClass) {
        m_lastClass = className;
        m_lastCount = &m_classes[className];
    }
    m_indices.push_back((*m_lastCount)++);
}

// The slot of that name, or the free slot for it; there are twice as many slots as names.
std::size_t SiblingIndex::slotOf(std::string_view name) const
{
    const auto children = m_parent.getChildren();
    const std::size_t mask = m_names.size() - 1;
    std::size_t slot = std::hash<std::string_view>()(name) & mask;
    while (m_names[slot] != 0 && children[m_names[slot] - 1]->getName().view() != name)
        slot = (slot + 1) & mask;
    return slot;
}

} // namespace meridane
