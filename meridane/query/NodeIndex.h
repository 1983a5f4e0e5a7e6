#pragma once

#include "meridane/base/types/NxType.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class NxNode;

namespace meridane {

class Journal;

/// The names and classes of all nodes of a scene, in the order of a scene file, so that a search needn't go through
/// the nodes themselves. About 40 bytes a node.
///
/// Each node has one entry, at its first use; further uses are listed apart. An index is made in parts and is valid
/// until a list of children changes: then discard or restart it. Names that change can be read again. It keeps no node
/// alive.
class NodeIndex {
public:
    /// The number of an entry, from 0.
    using Entry = std::uint32_t;
    static constexpr Entry none = static_cast<Entry>(-1); ///< the number of no entry

    /// A further use of a node that is in several places.
    struct Use {
        Entry node = none; ///< the entry of the node
        Entry parent = none; ///< the entry of the group that uses it again; `none` for the scene itself
    };

    /// The journal of the scene, which must outlive the index. Nothing is read yet.
    explicit NodeIndex(const Journal& journal);

    /// Begins again, in the memory that it has: after a list of children has changed.
    void restart();
    /// Adds the next `count` nodes or uses. Returns false when there are no more.
    bool extend(std::size_t count);
    /// Whether all nodes are in the index.
    [[nodiscard]] bool isComplete() const noexcept { return m_levels.empty(); }

    /// The number of entries so far; entries are numbers below it. A parent precedes its children.
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }
    /// How many there will be at most, as far as that is known now.
    [[nodiscard]] std::size_t mostEntries() const noexcept { return m_entries.size(); }
    /// The node of an entry, which must be alive.
    [[nodiscard]] const NxNode& node(Entry entry) const { return *chunk(entry).nodes[entry % chunkSize]; }
    /// The entry of the group at the first use; `none` for a top node.
    [[nodiscard]] Entry parent(Entry entry) const { return chunk(entry).parents[entry % chunkSize]; }
    /// The class of the node.
    [[nodiscard]] NxType type(Entry entry) const { return chunk(entry).types[entry % chunkSize]; }
    /// The name in the form in which names are compared (see `foldText`). Valid until a name changes.
    [[nodiscard]] std::string_view foldedName(Entry entry) const;
    /// The nodes from the top one down to that of the entry.
    [[nodiscard]] std::vector<NxNode*> path(Entry entry) const;
    /// The entry of a node, which must exist; nothing if there is none (yet).
    [[nodiscard]] std::optional<Entry> find(const NxNode& node) const;
    /// The further uses, in the order of the scene.
    [[nodiscard]] std::span<const Use> uses() const noexcept { return m_uses; }

    /// Reads the name of a node again.
    void updateName(Entry entry);

private:
    static constexpr std::size_t chunkSize = 4096;

    /// A part of the entries, so that nothing large is ever copied.
    struct Chunk {
        std::array<const NxNode*, chunkSize> nodes;
        std::array<Entry, chunkSize> parents;
        std::array<NxType, chunkSize> types;
        std::array<std::size_t, chunkSize> nameEnds; ///< in `names`
        std::string names;
    };
    struct Level {
        std::span<NxNode* const> children;
        std::size_t next = 0;
        Entry parent = none;
    };

    [[nodiscard]] const Chunk& chunk(Entry entry) const { return *m_chunks[entry / chunkSize]; }
    Entry append(const NxNode& node, Entry parent);
    static void readAhead(const Level& level);
    [[nodiscard]] static std::size_t nameStart(const Chunk& chunk, std::size_t place);

    const Journal* m_journal;
    std::vector<std::unique_ptr<Chunk>> m_chunks;
    std::size_t m_size = 0;
    std::vector<Entry> m_entries; // by number of the journal
    std::vector<Use> m_uses;
    std::vector<Level> m_levels;
    std::string m_folded;
};

} // namespace meridane
