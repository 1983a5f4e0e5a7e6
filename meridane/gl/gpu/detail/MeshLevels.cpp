#include "meridane/gl/gpu/detail/MeshLevels.h"

#include "meridane/scene/check/MeshPrimitives.h"
#include "meridane/scene/fields/EffectiveField.h"

#include <algorithm>
#include <new>
#include <span>
#include <utility>

namespace meridane {
namespace {

/// Vertices or primitives that are copied in less than a millisecond, unless the machine is very busy.
constexpr std::size_t sliceSize = 16'384;

std::size_t bytesOf(const MeshCopy& copy)
{
    return (copy.positions.capacity() + copy.normals.capacity()) * sizeof(VbVec3f)
        + copy.indices.capacity() * sizeof(std::uint32_t);
}

} // namespace

void MeshLevels::want(MeshRecord& mesh)
{
    if (mesh.reduction != nullptr || mesh.mesh() == nullptr || mesh.shape.vertexCount < leastVertices)
        return;
    mesh.reduction = std::make_unique<MeshReduction>();
    const auto corners = static_cast<std::size_t>(effectiveField(mesh.mesh()->indices).getNum());
    const std::size_t bytes = mesh.shape.vertexCount * 2 * sizeof(VbVec3f) + corners * sizeof(std::uint32_t);
    if (bytes > mostBytesOfMesh)
        return;
    m_wanted.push_back(&mesh);
}

void MeshLevels::release(MeshRecord& mesh)
{
    if (mesh.reduction == nullptr)
        return;
    mesh.reduction.reset();
    std::erase(m_wanted, &mesh);
    if (m_copying.mesh == &mesh)
        m_copying = Copying();
    for (Given& given : m_given) {
        if (given.mesh != &mesh)
            continue;
        given.mesh = nullptr;
        given.job->isCancelled = true;
    }
}

void MeshLevels::proceed(const std::function<bool()>& isTimeOver)
{
    takeResults();
    try {
        copyMeshes(isTimeOver);
    } catch (const std::bad_alloc&) { // the mesh keeps its detail
        std::erase(m_wanted, m_copying.mesh);
        m_copying = Copying();
    }
}

void MeshLevels::copyMeshes(const std::function<bool()>& isTimeOver)
{
    while (!isTimeOver()) {
        if (m_copying.mesh != nullptr && m_copying.mesh->areLevelsStale)
            release(*m_copying.mesh);
        if (m_copying.mesh == nullptr) {
            if (isWaiting())
                return;
            if (m_wanted.front()->isPending || m_wanted.front()->areLevelsStale) {
                release(*m_wanted.front());
                continue;
            }
            start(*m_wanted.front());
        }
        if (m_copying.mesh->isPending)
            return;
        if (!copySome())
            give();
    }
}

void MeshLevels::takeResults()
{
    std::erase_if(m_given, [this](const Given& given) {
        if (!given.job->isDone)
            return false;
        m_waitingBytes -= given.bytes;
        if (given.mesh == nullptr)
            return true;
        if (given.mesh->areLevelsStale || given.mesh->isPending)
            given.mesh->reduction.reset(); // made from a former state of the mesh
        else
            given.mesh->reduction->levels = std::move(given.job->levels);
        return true;
    });
}

void MeshLevels::start(MeshRecord& mesh)
{
    m_copying.mesh = &mesh;
    const auto indices = static_cast<std::size_t>(effectiveField(mesh.mesh()->indices).getNum());
    m_copying.copy.corners = cornersOf(mesh.shape.primitive);
    m_copying.copy.positions.reserve(mesh.shape.vertexCount);
    if (mesh.shape.hasNormals)
        m_copying.copy.normals.reserve(mesh.shape.vertexCount);
    m_copying.copy.indices.reserve(indices != 0 ? indices : mesh.shape.vertexCount);
}

bool MeshLevels::copySome()
{
    const NxMesh& mesh = *m_copying.mesh->mesh();
    MeshCopy& copy = m_copying.copy;
    const std::span<const VbVec3f> positions = effectiveField(mesh.positions).getValues();
    const auto sliceOf = [](std::span<const VbVec3f> list, std::size_t first) {
        return list.subspan(first, std::min(sliceSize, list.size() - first));
    };
    if (copy.positions.size() < positions.size()) {
        const std::span<const VbVec3f> slice = sliceOf(positions, copy.positions.size());
        copy.positions.insert(copy.positions.end(), slice.begin(), slice.end());
        return true;
    }
    const std::span<const VbVec3f> normals = effectiveField(mesh.normals).getValues();
    if (m_copying.mesh->shape.hasNormals && copy.normals.size() < normals.size()) {
        const std::span<const VbVec3f> slice = sliceOf(normals, copy.normals.size());
        copy.normals.insert(copy.normals.end(), slice.begin(), slice.end());
        return true;
    }
    const std::span<const int> indices = effectiveField(mesh.indices).getValues();
    const std::size_t count = (indices.empty() ? positions.size() : indices.size()) / copy.corners;
    const std::size_t end = std::min(count, m_copying.primitives + sliceSize);
    for (; m_copying.primitives < end; ++m_copying.primitives) {
        const std::size_t before = copy.indices.size();
        for (std::size_t i = 0; i < copy.corners; ++i) {
            const std::size_t corner = m_copying.primitives * copy.corners + i;
            const std::size_t vertex = indices.empty() ? corner : static_cast<std::size_t>(indices[corner]);
            if (vertex >= positions.size() || !isUsable(positions[vertex])) { // a negative index is larger than any
                copy.indices.resize(before);
                break;
            }
            copy.indices.push_back(static_cast<std::uint32_t>(vertex));
        }
    }
    return m_copying.primitives < count;
}

void MeshLevels::give()
{
    auto job = std::make_shared<ReductionJob>();
    job->mesh = std::move(m_copying.copy);
    const std::size_t bytes = bytesOf(job->mesh);
    m_waitingBytes += bytes;
    std::erase(m_wanted, m_copying.mesh);
    m_given.push_back({m_copying.mesh, job, bytes});
    m_copying = Copying();
    m_thread.add(std::move(job));
}

} // namespace meridane
