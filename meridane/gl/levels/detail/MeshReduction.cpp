#include "meridane/gl/levels/detail/MeshReduction.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/gl/levels/detail/SurfaceSimplification.h"
#include "meridane/gl/levels/detail/VertexClusters.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace meridane {
namespace {

constexpr std::size_t triangle = 3;
/// Cells along the longest side of a mesh of so many vertices that they are merged before anything else, and of others,
/// of which only vertices at the same place are merged.
constexpr float cellsOfLarge = 512;
constexpr float cellsOfSmall = 8192;
constexpr std::size_t manyVertices = 300'000;
/// Of the size of a mesh: what the first reduction of a small one may move, and the greatest error that is useful.
constexpr float firstError = 1.0F / 256;
constexpr float greatestError = 1.0F / 4;
/// A mesh with fewer primitives isn't reduced further.
constexpr std::size_t fewPrimitives = 24;
/// The first reduced mesh has at most this share of the indices, the next ones half of those before.
constexpr std::size_t firstShare = 4;

/// A reduced mesh with its positions.
struct Work {
    ReducedMesh mesh;
    std::vector<VbVec3f> places; // of mesh.positions
};

float sizeOf(std::span<const VbVec3f> positions)
{
    NxBounds bounds;
    for (const VbVec3f& position : positions) {
        if (isFinite(position))
            bounds.include(position);
    }
    const VbVec3f size = bounds.isEmpty() ? VbVec3f() : bounds.size();
    return std::max({size[0], size[1], size[2]});
}

/// Leaves out the vertices that no index leads to.
Work compacted(const Work& work, std::vector<std::uint32_t> indices)
{
    constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();
    std::vector<std::uint32_t> numbers(work.places.size(), none);
    Work result;
    result.mesh.error = work.mesh.error;
    for (std::uint32_t& index : indices) {
        if (numbers[index] == none) {
            numbers[index] = static_cast<std::uint32_t>(result.places.size());
            result.places.push_back(work.places[index]);
            result.mesh.positions.push_back(work.mesh.positions[index]);
            result.mesh.vertices.push_back(work.mesh.vertices[index]);
        }
        index = numbers[index];
    }
    result.mesh.indices = std::move(indices);
    return result;
}

/// Appends a primitive to those after `before`, unless it has collapsed.
void appendPrimitive(std::vector<std::uint32_t>& indices, std::span<const std::uint32_t> corners,
    const VertexClusters& clusters, std::vector<bool>& isSeen)
{
    const std::size_t before = indices.size();
    for (const std::uint32_t corner : corners) {
        const std::uint32_t cluster = clusters.clusterOf(corner);
        const std::uint32_t cell = clusters.cellOf(cluster);
        const bool isTwice = std::any_of(indices.begin() + static_cast<std::ptrdiff_t>(before), indices.end(),
            [&](std::uint32_t other) { return clusters.cellOf(other) == cell; });
        if (isTwice || (corners.size() == 1 && isSeen[cell])) {
            indices.resize(before);
            return;
        }
        isSeen[cell] = true;
        indices.push_back(cluster);
    }
}

/// Merges the vertices in cells of that size. The normals are those of all vertices of the whole mesh.
Work merged(const Work& work, const MeshCopy& whole, float cellSize)
{
    std::vector<VbVec3f> normals;
    if (!whole.normals.empty()) {
        normals.reserve(work.places.size());
        for (const std::uint32_t vertex : work.mesh.vertices)
            normals.push_back(whole.normals[vertex]);
    }
    const VertexClusters clusters(work.places, normals, cellSize);
    Work result;
    double farthest = 0;
    for (std::uint32_t cluster = 0; cluster < clusters.count(); ++cluster) {
        const std::uint32_t source = clusters.positionOf(cluster);
        result.places.push_back(work.places[source]);
        result.mesh.positions.push_back(work.mesh.positions[source]);
        result.mesh.vertices.push_back(work.mesh.vertices[clusters.vertexOf(cluster)]);
    }
    std::vector<bool> isSeen(clusters.count());
    std::vector<std::uint32_t> indices;
    for (std::size_t first = 0; first < work.mesh.indices.size(); first += whole.corners) {
        const std::span<const std::uint32_t> corners(
            work.mesh.indices.begin() + static_cast<std::ptrdiff_t>(first), whole.corners);
        for (const std::uint32_t corner : corners) {
            farthest
                = std::max(farthest, length(subtract(work.places[corner], result.places[clusters.clusterOf(corner)])));
        }
        appendPrimitive(indices, corners, clusters, isSeen);
    }
    result.mesh.error = work.mesh.error + static_cast<float>(farthest);
    return compacted(result, std::move(indices));
}

Work simplified(const Work& work, float error, const std::atomic<bool>& isCancelled)
{
    Work result = compacted(work, simplifiedTriangles(work.places, work.mesh.indices, error, isCancelled));
    result.mesh.error = work.mesh.error + error;
    return result;
}

Work wholeOf(const MeshCopy& mesh)
{
    Work work;
    work.places = mesh.positions;
    work.mesh.positions.resize(mesh.positions.size());
    std::iota(work.mesh.positions.begin(), work.mesh.positions.end(), 0U);
    work.mesh.vertices = work.mesh.positions;
    work.mesh.indices = mesh.indices;
    return work;
}

/// The mesh with an error of about `error`, made from a finer one.
Work coarser(const Work& work, const MeshCopy& whole, float error, const std::atomic<bool>& isCancelled)
{
    constexpr float mostOfCell = 0.6F; // a vertex moves by at most 1.7 times the size of a cell
    const float room = error - work.mesh.error;
    if (whole.corners != triangle)
        return merged(work, whole, room * mostOfCell);
    Work result = simplified(work, room, isCancelled);
    // Many small parts, or vertices that belong to more than one surface, can't be simplified without merging them.
    if (result.mesh.indices.size() > work.mesh.indices.size() / 10 * 7 && !isCancelled) {
        Work other = merged(work, whole, room * mostOfCell);
        if (other.mesh.indices.size() < result.mesh.indices.size())
            return other;
    }
    return result;
}

} // namespace

std::vector<ReducedMesh> reducedMeshes(const MeshCopy& mesh, const std::atomic<bool>& isCancelled)
{
    std::vector<ReducedMesh> levels;
    const float size = sizeOf(mesh.positions);
    if (!(size > 0) || mesh.indices.size() < fewPrimitives * mesh.corners)
        return levels;
    const bool isLarge = mesh.positions.size() > manyVertices;
    Work work = merged(wholeOf(mesh), mesh, size / (isLarge ? cellsOfLarge : cellsOfSmall));
    // Merging what is merged already would add up the errors.
    const Work first = mesh.corners == triangle ? Work() : work;
    std::size_t most = mesh.indices.size() / firstShare;
    for (float error = std::max(firstError * size, work.mesh.error * 1.25F);
         error < greatestError * size && !isCancelled; error *= 2) {
        work = coarser(mesh.corners == triangle ? work : first, mesh, error, isCancelled);
        if (isCancelled)
            break;
        if (work.mesh.indices.size() > most)
            continue;
        levels.push_back(work.mesh);
        if (mesh.corners == triangle)
            levels.back().hiddenSides = hiddenSidesOf(work.places, work.mesh.positions, work.mesh.indices);
        most = work.mesh.indices.size() / 2;
        if (work.mesh.indices.size() <= fewPrimitives * mesh.corners)
            break;
    }
    return levels;
}

} // namespace meridane
