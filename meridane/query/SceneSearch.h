#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/query/NodeIndex.h"
#include "meridane/query/Query.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

class NxNode;

namespace meridane {

class Journal;
class QueryFacts;

/// Finds the nodes of a scene that match a query, in slices, and the groups that lead to them.
///
/// The names are read once, by the first search; later ones take a fraction of its time. A search is valid until a list
/// of children changes: then discard or restart it. Other changes of a node are reported by `update`. It keeps no node
/// alive. Thread of the user interface only.
class SceneSearch {
public:
    /// The number of a node in the index.
    using Entry = NodeIndex::Entry;

    /// The journal of the scene, which must outlive the search.
    explicit SceneSearch(const Journal& journal);

    /// Forgets everything, as if it were new, but keeps its memory: after a list of children has changed.
    void restart();
    /// Forgets all hits and begins again. The empty query finds nothing; it only reads the names for the next one.
    /// Without facts, no node is unused and no file missing.
    void begin(Query query, std::shared_ptr<const QueryFacts> facts = nullptr);
    /// Works until done, or until the budget is spent. Returns whether there is more to do.
    bool step(const WorkBudget& budget);
    /// Whether all nodes have been compared with the query, so that all hits are known.
    [[nodiscard]] bool isComplete() const noexcept;

    /// The names and classes of the nodes, as far as they have been read; valid as long as the search.
    [[nodiscard]] const NodeIndex& index() const noexcept { return m_index; }
    /// The query of the latest `begin`.
    [[nodiscard]] const Query& query() const noexcept { return m_query; }
    /// The facts of the latest `begin`, or null.
    [[nodiscard]] const QueryFacts* facts() const noexcept { return m_facts.get(); }
    /// The hits so far, in the order of the scene.
    [[nodiscard]] std::span<const Entry> hits() const noexcept { return m_hits; }
    /// How many of them precede that entry.
    [[nodiscard]] std::size_t hitsBefore(Entry entry) const;
    /// Whether the node is among the hits so far.
    [[nodiscard]] bool isHit(const NxNode& node) const;
    /// Whether there is a hit below the node, in any of its places.
    [[nodiscard]] bool leadsToHit(const NxNode& node) const;

    /// Compares a node again whose name or values have changed. Returns whether that made it a hit, or none.
    bool update(const NxNode& node);

private:
    using Flags = std::vector<std::uint8_t>; // one an entry, 0 or 1

    void searchOn();
    bool markOn();
    void markGroups(Flags& flags, Entry entry) const;
    [[nodiscard]] bool matches(Entry entry) const;

    NodeIndex m_index;
    Query m_query;
    std::shared_ptr<const QueryFacts> m_facts;
    std::size_t m_next = 0; // entry to be compared
    std::vector<Entry> m_hits;
    Flags m_isHit;
    Flags m_leads;
    /// Another `m_leads` that is being made, since a hit was lost.
    std::optional<Flags> m_coming;
    std::size_t m_nextHit = 0; // to be marked in it
    std::size_t m_nextUse = 0;
};

} // namespace meridane
