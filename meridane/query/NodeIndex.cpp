#include "meridane/query/NodeIndex.h"

#include "meridane/query/detail/TextFolding.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxNode.h"

#include <algorithm>
#include <utility>

namespace meridane {

NodeIndex::NodeIndex(const Journal& journal)
    : m_journal(&journal)
    , m_entries(journal.nodeCount(), none)
    , m_levels{{journal.scene().getChildren(), 0, none}}
{
}

void NodeIndex::restart()
{
    m_entries.assign(m_journal->nodeCount(), none);
    m_levels.assign(1, {m_journal->scene().getChildren(), 0, none});
    m_uses.clear();
    m_size = 0;
}

bool NodeIndex::extend(std::size_t count)
{
    for (; count > 0; --count) {
        while (!m_levels.empty() && m_levels.back().next == m_levels.back().children.size())
            m_levels.pop_back();
        if (m_levels.empty())
            return false;
        Level& level = m_levels.back();
        readAhead(level);
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

/// Nodes and names are anywhere in memory. To ask for several at once takes little longer than to wait for one.
void NodeIndex::readAhead(const Level& level)
{
    constexpr std::size_t atOnce = 16;
    if (level.next % atOnce != 0)
        return;
    const auto after = level.children.subspan(level.next);
    const auto next = after.first(std::min(atOnce, after.size()));
    const auto later = after.subspan(next.size());
    for (const NxNode* const node : next)
        __builtin_prefetch(node->getName().view().data());
    // Earlier, since a name is found only through its node.
    for (const NxNode* const node : later.first(std::min(atOnce, later.size())))
        __builtin_prefetch(node);
}

NodeIndex::Entry NodeIndex::append(const NxNode& node, Entry parent)
{
    const std::size_t place = m_size % chunkSize;
    const std::size_t number = m_size / chunkSize;
    if (place == 0 && number < m_chunks.size()) {
        m_chunks[number]->names.clear();
    } else if (place == 0) {
        auto made = std::make_unique_for_overwrite<Chunk>();
        if (!m_chunks.empty()) // names are about as long as those before
            made->names.reserve(m_chunks.back()->names.size() + chunkSize);
        m_chunks.push_back(std::move(made));
    }
    Chunk& chunk = *m_chunks[number];
    appendFolded(node.getName().view(), chunk.names);
    chunk.nodes[place] = &node;
    chunk.parents[place] = parent;
    chunk.types[place] = node.getTypeId();
    chunk.nameEnds[place] = chunk.names.size();
    return static_cast<Entry>(m_size++);
}

std::size_t NodeIndex::nameStart(const Chunk& chunk, std::size_t place)
{
    return place > 0 ? chunk.nameEnds[place - 1] : 0;
}

std::string_view NodeIndex::foldedName(Entry entry) const
{
    const Chunk& chunk = *m_chunks[entry / chunkSize];
    const std::size_t place = entry % chunkSize;
    const std::size_t start = nameStart(chunk, place);
    return std::string_view(chunk.names).substr(start, chunk.nameEnds[place] - start);
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
    const std::size_t before = chunk.nameEnds[place] - start;
    foldText(chunk.nodes[place]->getName().view(), m_folded);
    if (std::string_view(chunk.names).substr(start, before) == m_folded)
        return; // other changes of a node are far more frequent
    chunk.names.replace(start, before, m_folded);
    const std::size_t end = std::min(chunkSize, m_size - entry / chunkSize * chunkSize);
    for (std::size_t i = place; i < end; ++i)
        chunk.nameEnds[i] = chunk.nameEnds[i] + m_folded.size() - before;
}

} // namespace meridane
