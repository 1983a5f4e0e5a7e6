#include "meridane/scene/file/detail/SceneReferences.h"

#include <algorithm>

namespace meridane {

void SceneReferences::add(NxNode* node, const std::string& label)
{
    if (!node->getName().isEmpty())
        m_entries.push_back({node->getName().view(), node});
    if (!label.empty())
        m_entries.push_back({m_labels.emplace_back(label), node});
}

bool SceneReferences::update(std::size_t budget)
{
    const std::size_t end = std::min(m_entries.size(), m_indexed + budget);
    for (; m_indexed < end; ++m_indexed)
        m_index.insert_or_assign(m_entries[m_indexed].text, m_entries[m_indexed].node);
    return m_indexed < m_entries.size();
}

NxNode* SceneReferences::find(std::string_view text) const
{
    const auto place = m_index.find(text);
    return place == m_index.end() ? nullptr : place->second;
}

} // namespace meridane
