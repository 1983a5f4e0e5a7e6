#include "meridane/query/NodeIndex.h"

#include "meridane/query/detail/TextFolding.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxNode.h"

#include <algorithm>

namespace meridane {

NodeIndex::NodeIndex(const Journal& journal)
    : m_journal(&journal)
    , m_entries(journal.nodeCount(), none)
    , m_levels{{journal.scene().getChildren(), 0, none}}
{
}

bool NodeIndex::extend(std::size_t count)
{
    for (; count > 0; --count) {
        while (!m_levels.empty() && m_levels.back().next == m_levels.back().children.size())
            m_levels.pop_back();
        if (m_levels.empty())
            return false;
        Level& level = m_levels.back();
        const NxNode& node = *level.children[level.next++];
        const std::optional<std::size_t> number = m_journal->number(node);
        if (!number)
            continue; // no part of the scene
        if (*number >= m_entries.size())
            m_entries.resize(*number + 1, none);
        if (m_entries[*number] != none) {
            m_uses.push_back({m_entries[*number], level.parent});
            continue;
        }
        const Entry entry = append(node, level.parent);
        m_entries[*number] = entry;
        if (const auto children = node.getChildren(); !children.empty())
            m_levels.push_back({children, 0, entry});
    }
    return true;
}

NodeIndex::Entry NodeIndex::append(const NxNode& node, Entry parent)
{
    const std::size_t place = m_size % chunkSize;
    if (place == 0)
        m_chunks.push_back(std::make_unique<Chunk>());
    Chunk& chunk = *m_chunks.back();
    foldText(node.getName().view(), m_folded);
    chunk.names += m_folded;
    chunk.items[place] = {&node, parent, node.getTypeId(), chunk.names.size()};
    return static_cast<Entry>(m_size++);
}

std::size_t NodeIndex::nameStart(const Chunk& chunk, std::size_t place)
{
    return place > 0 ? chunk.items[place - 1].nameEnd : 0;
}

std::string_view NodeIndex::foldedName(Entry entry) const
{
    const Chunk& chunk = *m_chunks[entry / chunkSize];
    const std::size_t place = entry % chunkSize;
    const std::size_t start = nameStart(chunk, place);
    return std::string_view(chunk.names).substr(start, chunk.items[place].nameEnd - start);
}

std::vector<NxNode*> NodeIndex::path(Entry entry) const
{
    std::vector<NxNode*> nodes;
    for (; entry != none; entry = parent(entry)) {
        // The index has the nodes from a scene that its owner may change.
        nodes.push_back(const_cast<NxNode*>(&node(entry))); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    }
    std::reverse(nodes.begin(), nodes.end());
    return nodes;
}

std::optional<NodeIndex::Entry> NodeIndex::find(const NxNode& node) const
{
    const std::optional<std::size_t> number = m_journal->number(node);
    if (!number || *number >= m_entries.size() || m_entries[*number] == none)
        return std::nullopt;
    return m_entries[*number];
}

void NodeIndex::updateName(Entry entry)
{
    Chunk& chunk = *m_chunks[entry / chunkSize];
    const std::size_t place = entry % chunkSize;
    const std::size_t start = nameStart(chunk, place);
    const std::size_t before = chunk.items[place].nameEnd - start;
    foldText(chunk.items[place].node->getName().view(), m_folded);
    chunk.names.replace(start, before, m_folded);
    const std::size_t end = std::min(chunkSize, m_size - entry / chunkSize * chunkSize);
    for (std::size_t i = place; i < end; ++i)
        chunk.items[i].nameEnd = chunk.items[i].nameEnd + m_folded.size() - before;
}

} // namespace meridane
