#pragma once

#include "meridane/gl/places/detail/NodeRecord.h"
#include "meridane/scene/nodes/NxNode.h"

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace meridane {

/// The records of all nodes that are drawn, one for each node, however many instances it has.
class NodeRecords {
public:
    /// Returns the node's record, and creates it if there is none. The caller must `retain` a record that it keeps.
    template <typename Record, typename Node>
    Record& of(Node& node, NodeRecordListener& listener)
    {
        const auto known = m_records.find(&node);
        if (known != m_records.end())
            return static_cast<Record&>(*known->second);
        makeRoom();
        auto made = std::make_unique<Record>(node, listener);
        Record& record = *made;
        m_records.emplace(&node, std::move(made));
        m_bytes += bytesOf(record);
        markUnused(record);
        return record;
    }

    static void retain(NodeRecord& record) noexcept { ++record.uses; }
    void release(NodeRecord& record) noexcept
    {
        if (--record.uses == 0)
            markUnused(record);
    }
    /// Called when the node is destroyed: another node may soon have its address.
    void forgetNode(NodeRecord& record);
    /// Destroys the records that nobody uses. Calls `beforeDestroy` with each of them first.
    template <typename Callback>
    void destroyUnused(Callback beforeDestroy)
    {
        for (NodeRecord* record : m_unused) {
            record->isUnused = false;
            if (record->uses == 0) {
                beforeDestroy(*record);
                destroy(*record);
            }
        }
        m_unused.clear();
    }

    /// The node's record, or null when it has none.
    [[nodiscard]] const NodeRecord* find(const NxNode* node) const;
    template <typename Visit>
    void forEach(Visit visit)
    {
        for (auto& [node, record] : m_records)
            visit(*record);
        for (auto& [orphan, record] : m_orphans)
            visit(*record);
    }
    [[nodiscard]] std::size_t count() const noexcept { return m_records.size(); }
    [[nodiscard]] std::size_t bytes() const noexcept { return m_bytes; }

private:
    // Reserves memory so that marking one more record as unused can't fail.
    void makeRoom();
    void markUnused(NodeRecord& record) noexcept
    {
        if (!std::exchange(record.isUnused, true))
            m_unused.push_back(&record);
    }
    void destroy(NodeRecord& record);
    [[nodiscard]] static std::size_t bytesOf(const NodeRecord& record) noexcept;

    std::unordered_map<const NxNode*, std::unique_ptr<NodeRecord>> m_records;
    /// Records of destroyed nodes.
    std::unordered_map<const NodeRecord*, std::unique_ptr<NodeRecord>> m_orphans;
    std::vector<NodeRecord*> m_unused;
    std::size_t m_bytes = 0;
};

} // namespace meridane
