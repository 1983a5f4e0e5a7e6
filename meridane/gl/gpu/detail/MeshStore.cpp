#include "meridane/gl/gpu/detail/MeshStore.h"

#include "meridane/base/ContentHash.h"
#include "meridane/scene/check/MeshPrimitives.h"
#include "meridane/scene/fields/EffectiveField.h"

#include <algorithm>
#include <utility>

namespace meridane {
namespace {

constexpr std::size_t indexList = attributes;
constexpr unsigned int layoutWithIndices = 1U << indexList;
/// The numbers of floats of the attributes.
constexpr std::array<std::size_t, attributes> attributeFloats{3, 3, 2, 4};
/// Limits of a page that holds several meshes.
constexpr std::uint32_t maxSharedVertices = 1U << 22U;
constexpr std::uint32_t maxSharedIndices = 1U << 24U;

std::size_t elementBytes(std::size_t list)
{
    return list == indexList ? sizeof(std::uint32_t) : attributeFloats[list] * sizeof(float);
}

bool hasList(unsigned int layout, std::size_t list)
{
    return (layout >> list & 1U) != 0;
}

unsigned int layoutOf(const MeshShape& shape)
{
    return 1U | (shape.hasNormals ? 2U : 0U) | (shape.hasCoordinates ? 4U : 0U)
        | (shape.colors == MeshShape::Colors::Each ? 8U : 0U) | (shape.hasIndices ? layoutWithIndices : 0U);
}

std::span<const std::byte> bytesOfSimplified(const SimplifiedMesh& mesh, std::size_t list)
{
    switch (list) {
    case 0:
        return std::as_bytes(std::span(mesh.positions));
    case 1:
        return std::as_bytes(std::span(mesh.normals));
    case 2:
        return std::as_bytes(std::span(mesh.coordinates));
    case 3:
        return std::as_bytes(std::span(mesh.colors));
    default:
        return std::as_bytes(std::span(mesh.indices));
    }
}

std::span<const std::byte> bytesOfMesh(const NxMesh& mesh, std::size_t list)
{
    switch (list) {
    case 0:
        return std::as_bytes(effectiveField(mesh.positions).getValues());
    case 1:
        return std::as_bytes(effectiveField(mesh.normals).getValues());
    case 2:
        return std::as_bytes(effectiveField(mesh.textureCoordinates).getValues());
    case 3:
        return std::as_bytes(effectiveField(mesh.colors).getValues());
    default:
        return std::as_bytes(effectiveField(mesh.indices).getValues());
    }
}

/// Whether the shape of the mesh is that of its lists.
bool isUpToDate(const MeshRecord& mesh)
{
    return mesh.mesh() != nullptr && !mesh.isPending;
}

} // namespace

MeshStore::~MeshStore()
{
    for (const Id id : m_pageIds)
        deletePage(m_pages[id]);
}

void MeshStore::forget()
{
    m_pages = SlotTable<Page>();
    m_pageIds.clear();
    m_requests.clear();
    m_bytes = 0;
}

void MeshStore::releaseRange(MeshRange& range)
{
    if (range.page == noId)
        return;
    Page& page = m_pages[range.page];
    page.vertices.release(range.firstVertex, range.vertexCount);
    page.indices.release(range.firstIndex, range.indexCount);
    --page.meshes;
    range = MeshRange();
}

void MeshStore::releaseLevels(MeshRecord& mesh)
{
    for (MeshLevel& level : mesh.levels)
        releaseRange(level.range);
    mesh.levels.clear();
    m_levels.release(mesh);
}

void MeshStore::dropOldLevels(MeshRecord& mesh)
{
    if (std::exchange(mesh.areLevelsStale, false))
        releaseLevels(mesh);
}

void MeshStore::wantReduced(MeshRecord& mesh)
{
    if (!isUpToDate(mesh))
        return;
    dropOldLevels(mesh);
    m_levels.want(mesh);
}

void MeshStore::release(MeshRecord& mesh)
{
    releaseRange(mesh.range);
    releaseLevels(mesh);
    mesh.fingerprints.fill(0);
    mesh.isStale = true;
}

MeshStore::Transfer MeshStore::describe(MeshRecord& mesh, MeshDetail detail)
{
    Transfer transfer;
    transfer.mesh = &mesh;
    transfer.detail = detail;
    transfer.layout = layoutOf(mesh.shape);
    if (detail != fullDetail) {
        transfer.simplified = std::make_shared<SimplifiedMesh>((detail & reducedBit) != 0
                ? gathered(*mesh.mesh(), mesh.shape, mesh.reduction->levels[detail & ~reducedBit])
                : simplified(*mesh.mesh(), mesh.shape, detail));
        transfer.layout |= layoutWithIndices;
        transfer.vertexCount = static_cast<std::uint32_t>(transfer.simplified->positions.size());
        transfer.indexCount = static_cast<std::uint32_t>(transfer.simplified->indices.size());
        return transfer;
    }
    transfer.vertexCount = mesh.shape.vertexCount;
    if (mesh.shape.needsFilter)
        transfer.indexCount = static_cast<std::uint32_t>(usableIndices(*mesh.mesh()).size());
    else
        transfer.indexCount = static_cast<std::uint32_t>(effectiveField(mesh.mesh()->indices).getNum());
    return transfer;
}

void MeshStore::request(MeshRecord& mesh, MeshDetail detail)
{
    if (!isUpToDate(mesh))
        return;
    dropOldLevels(mesh);
    const auto isIt = [detail](const MeshLevel& level) { return level.detail == detail; };
    const bool isThere
        = detail == fullDetail ? !mesh.isStale : std::any_of(mesh.levels.begin(), mesh.levels.end(), isIt);
    if (isThere)
        return;
    if (detail == fullDetail)
        mesh.isStale = false;
    else
        mesh.levels.push_back({detail, {}});
    m_requests.emplace_back(&mesh, detail);
    // The coarser ones take less together, and are wanted as soon as the mesh is farther away.
    if ((detail & reducedBit) != 0 && (detail & ~reducedBit) + 1 < mesh.reduction->levels.size())
        request(mesh, detail + 1);
}

void MeshStore::withdraw(MeshRecord& mesh, MeshDetail detail)
{
    if (detail == fullDetail)
        mesh.isStale = true;
    else
        std::erase_if(mesh.levels, [detail](const MeshLevel& level) { return level.detail == detail; });
}

void MeshStore::upload(NxDrawingCounts& counts)
{
    std::vector<Transfer> transfers;
    for (const auto& [mesh, detail] : std::exchange(m_requests, {})) {
        if (!isUpToDate(*mesh)) {
            withdraw(*mesh, detail);
            continue;
        }
        Transfer transfer = describe(*mesh, detail);
        if (fitsInRange(transfer)) {
            send(transfer, counts);
            continue;
        }
        if (detail == fullDetail) {
            releaseRange(mesh->range);
            mesh->fingerprints.fill(0);
        }
        transfers.push_back(std::move(transfer));
    }
    deleteEmptyPages();
    std::stable_sort(
        transfers.begin(), transfers.end(), [](const Transfer& a, const Transfer& b) { return a.layout < b.layout; });
    if (!transfers.empty())
        m_errors.report("Drawing the scene"); // so that later errors are those of this upload
    for (std::size_t i = 0; i < transfers.size(); ++i) {
        if (findRange(transfers[i]) || takeRange(transfers[i], makePage(transfers, i)))
            send(transfers[i], counts);
    }
}

void MeshStore::deleteEmptyPages()
{
    const auto isEmpty = [this](Id id) { return m_pages[id].meshes == 0; };
    for (const Id id : m_pageIds) {
        if (isEmpty(id))
            deletePage(m_pages[id]);
    }
    for (const Id id : m_pageIds) {
        if (isEmpty(id))
            m_pages.remove(id);
    }
    std::erase_if(m_pageIds, isEmpty);
}

bool MeshStore::fitsInRange(const Transfer& transfer) const
{
    const MeshRange& range = transfer.mesh->range;
    return transfer.detail == fullDetail && range.page != noId && m_pages[range.page].layout == transfer.layout
        && range.vertexCount == transfer.vertexCount && range.indexCount == transfer.indexCount;
}

bool MeshStore::findRange(const Transfer& transfer)
{
    return std::any_of(m_pageIds.begin(), m_pageIds.end(), [&](Id id) { return takeRange(transfer, id); });
}

bool MeshStore::takeRange(const Transfer& transfer, Id id)
{
    if (id == noId)
        return false;
    Page& page = m_pages[id];
    if (page.layout != transfer.layout || !page.indices.canTake(transfer.indexCount))
        return false;
    const std::optional<std::uint32_t> firstVertex = page.vertices.take(transfer.vertexCount);
    if (!firstVertex)
        return false;
    const std::uint32_t firstIndex = page.indices.take(transfer.indexCount).value_or(0);
    const MeshRange range{id, *firstVertex, transfer.vertexCount, firstIndex, transfer.indexCount};
    MeshRecord& mesh = *transfer.mesh;
    if (transfer.detail == fullDetail)
        mesh.range = range;
    for (MeshLevel& level : mesh.levels) {
        if (level.detail == transfer.detail)
            level.range = range;
    }
    ++page.meshes;
    return true;
}

// A page for this mesh and for those after it that have the same layout and fit in it.
Id MeshStore::makePage(std::span<const Transfer> transfers, std::size_t first)
{
    Page page;
    page.layout = transfers[first].layout;
    std::uint32_t vertexCount = transfers[first].vertexCount;
    std::uint32_t indexCount = transfers[first].indexCount;
    for (const Transfer& transfer : transfers.subspan(first + 1)) {
        if (transfer.layout != page.layout
            || transfer.vertexCount > maxSharedVertices - std::min(vertexCount, maxSharedVertices)
            || transfer.indexCount > maxSharedIndices - std::min(indexCount, maxSharedIndices))
            break;
        vertexCount += transfer.vertexCount;
        indexCount += transfer.indexCount;
    }
    page.vertices = RangeList(vertexCount);
    page.indices = RangeList(indexCount);
    m_gl.GenVertexArrays(1, &page.vertexArray);
    m_gl.BindVertexArray(page.vertexArray);
    for (std::size_t list = 0; list < page.buffers.size(); ++list) {
        if (!hasList(page.layout, list))
            continue;
        const std::size_t bytes = elementBytes(list) * (list == indexList ? indexCount : vertexCount);
        const GLenum target = list == indexList ? GL_ELEMENT_ARRAY_BUFFER : GL_ARRAY_BUFFER;
        m_gl.GenBuffers(1, &page.buffers[list]);
        m_gl.BindBuffer(target, page.buffers[list]);
        m_gl.BufferData(target, static_cast<GLsizeiptr>(bytes), nullptr, GL_STATIC_DRAW);
        page.bytes += bytes;
        if (list == indexList)
            continue;
        const auto place = static_cast<GLuint>(list);
        m_gl.EnableVertexAttribArray(place);
        m_gl.VertexAttribPointer(place, static_cast<GLint>(attributeFloats[list]), GL_FLOAT, GL_FALSE, 0, nullptr);
    }
    m_bytes += page.bytes;
    // Drawing from a buffer whose allocation failed could read any memory.
    if (m_errors.report("Making room for meshes")) {
        deletePage(page);
        return noId;
    }
    const Id id = m_pages.add(std::move(page));
    m_pageIds.push_back(id);
    return id;
}

std::span<const std::byte> MeshStore::bytesOf(const Transfer& transfer, std::size_t list)
{
    return transfer.simplified ? bytesOfSimplified(*transfer.simplified, list)
                               : bytesOfMesh(*transfer.mesh->mesh(), list);
}

void MeshStore::send(const Transfer& transfer, NxDrawingCounts& counts)
{
    const std::uint64_t before = counts.uploadedBytes;
    for (std::size_t list = 0; list < MeshRecord::lists; ++list) {
        if (!hasList(transfer.layout, list))
            continue;
        if (list == indexList && !transfer.simplified && transfer.mesh->shape.needsFilter) {
            const std::vector<std::uint32_t> indices = usableIndices(*transfer.mesh->mesh());
            sendList(transfer, list, std::as_bytes(std::span(indices)), counts);
        } else {
            sendList(transfer, list, bytesOf(transfer, list), counts);
        }
    }
    counts.meshUploads += counts.uploadedBytes != before ? 1U : 0U;
}

void MeshStore::sendList(
    const Transfer& transfer, std::size_t list, std::span<const std::byte> bytes, NxDrawingCounts& counts)
{
    if (bytes.empty())
        return;
    MeshRecord& mesh = *transfer.mesh;
    if (transfer.detail == fullDetail) {
        const std::uint64_t fingerprint = shortHashOf(bytes);
        if (fingerprint == std::exchange(mesh.fingerprints[list], fingerprint))
            return;
    }
    const MeshRange range = mesh.rangeOf(transfer.detail);
    const std::uint32_t first = list == indexList ? range.firstIndex : range.firstVertex;
    // Not as an element buffer, which would change the bound vertex array.
    m_gl.BindBuffer(GL_ARRAY_BUFFER, m_pages[range.page].buffers[list]);
    m_gl.BufferSubData(GL_ARRAY_BUFFER, static_cast<GLintptr>(first * elementBytes(list)),
        static_cast<GLsizeiptr>(bytes.size()), bytes.data());
    counts.uploadedBytes += bytes.size();
}

void MeshStore::deletePage(Page& page)
{
    m_gl.DeleteVertexArrays(1, &page.vertexArray);
    m_gl.DeleteBuffers(static_cast<GLsizei>(page.buffers.size()), page.buffers.data());
    m_bytes -= page.bytes;
}

} // namespace meridane
