#include "meridane/gl/places/detail/NodeRecords.h"

#include "meridane/gl/places/detail/GroupRecord.h"
#include "meridane/gl/places/detail/LightRecord.h"
#include "meridane/gl/places/detail/LookRecords.h"
#include "meridane/gl/places/detail/MeshRecord.h"

#include <algorithm>
#include <utility>

namespace meridane {

void NodeRecords::makeRoom()
{
    const std::size_t records = m_records.size() + m_orphans.size() + 1;
    if (records > m_unused.capacity())
        m_unused.reserve(std::max(records, 2 * m_unused.capacity()));
}

void NodeRecords::forgetNode(NodeRecord& record)
{
    const auto place = m_records.find(record.node());
    m_orphans.emplace(&record, std::move(place->second));
    m_records.erase(place);
}

void NodeRecords::destroy(NodeRecord& record)
{
    m_bytes -= bytesOf(record);
    if (record.node() == nullptr)
        m_orphans.erase(&record);
    else
        m_records.erase(record.node());
}

const NodeRecord* NodeRecords::find(const NxNode* node) const
{
    const auto place = m_records.find(node);
    return place == m_records.end() ? nullptr : place->second.get();
}

std::size_t NodeRecords::bytesOf(const NodeRecord& record) noexcept
{
    // The entry of the table, what the node needs for being watched, and the heads of three blocks of the heap.
    constexpr std::size_t besides = 3 * sizeof(void*) + 5 * sizeof(void*) + 3 * 2 * sizeof(void*);
    switch (record.kind()) {
    case NodeKind::Group:
        return sizeof(GroupRecord) + besides;
    case NodeKind::Mesh:
        return sizeof(MeshRecord) + besides;
    case NodeKind::Material:
        return sizeof(MaterialRecord) + besides;
    case NodeKind::Texture:
        return sizeof(TextureRecord) + besides;
    case NodeKind::Complexity:
        return sizeof(ComplexityRecord) + besides;
    case NodeKind::Light:
        return sizeof(LightRecord) + besides;
    case NodeKind::Other:
        break;
    }
    return besides;
}

} // namespace meridane
