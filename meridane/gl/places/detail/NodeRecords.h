#pragma once

#include "meridane/gl/places/detail/NodeRecord.h"
#include "meridane/scene/nodes/NxNode.h"

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace meridane {

/// The records of all nodes that drawing needs, one for a node however often it is used.
class NodeRecords {
public:
    /// The node's record, which is made when there is none. The caller must `retain` what it keeps.
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
    /// The node is dead: its address may soon be another node's.
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
    [[nodiscard]] std::size_t bytes() const noexcept { return m_bytes; }

private:
    // For one record more to be marked as unused, which then can't run out of memory.
    void makeRoom();
    void markUnused(NodeRecord& record) noexcept
    {
        if (!std::exchange(record.isUnused, true))
            m_unused.push_back(&record);
    }
    void destroy(NodeRecord& record);
    [[nodiscard]] static std::size_t bytesOf(const NodeRecord& record) noexcept;

    std::unordered_map<const NxNode*, std::unique_ptr<NodeRecord>> m_records;
    /// Of dead nodes.
    std::unordered_map<const NodeRecord*, std::unique_ptr<NodeRecord>> m_orphans;
    std::vector<NodeRecord*> m_unused;
    std::size_t m_bytes = 0;
};

} // namespace meridane
