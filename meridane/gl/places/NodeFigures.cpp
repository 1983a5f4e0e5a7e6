#include "meridane/gl/places/NodeFigures.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <algorithm>
#include <cmath>

using namespace meridane;

namespace {

/// Positions between two looks at the clock.
constexpr std::size_t positionsAtOnce = 4096;
/// Nodes, whose memory may have to be waited for.
constexpr std::size_t nodesAtOnce = 128;

bool isFinitePosition(const VbVec3f& position)
{
    return std::isfinite(position[0]) && std::isfinite(position[1]) && std::isfinite(position[2]);
}

std::uint64_t trianglesOf(const NxMesh& mesh)
{
    if (effectiveField(mesh.primitive).getValue() != NxMesh::TRIANGLES)
        return 0;
    const std::size_t indices = effectiveField(mesh.indices).getValues().size();
    return (indices != 0 ? indices : effectiveField(mesh.positions).getValues().size()) / 3;
}

} // namespace

NodeFigures::NodeFigures(std::span<NxNode* const> path)
    : m_path(path.begin(), path.end())
{
    restart();
}

void NodeFigures::restart()
{
    m_revision = NxFieldContainer::getStructureRevision();
    m_levels.clear();
    m_reading.reset();
    m_known.clear();
    m_places = 0;
    m_meshes = 0;
    m_triangles = 0;
    m_bounds = NxBounds();
    Matrix4d toScene;
    for (std::size_t i = 0; i + 1 < m_path.size(); ++i)
        toScene = multiply(localTransformOf(*m_path[i]), toScene);
    if (!m_path.empty())
        enter(*m_path.back(), toScene);
}

void NodeFigures::enter(const NxNode& node, const Matrix4d& above)
{
    ++m_places;
    if (const auto* const mesh = dynamic_cast<const NxMesh*>(&node)) {
        ++m_meshes;
        if (const auto known = m_known.find(mesh); known != m_known.end())
            add(known->second, above);
        else
            m_reading = Reading{mesh, 0, {{}, trianglesOf(*mesh)}, above};
    } else if (!node.getChildren().empty()) {
        m_levels.push_back({node.getChildren(), 0, multiply(localTransformOf(node), above)});
    }
}

bool NodeFigures::advance(const WorkBudget& budget)
{
    if (m_revision != NxFieldContainer::getStructureRevision())
        restart();
    for (std::size_t steps = 0; m_reading || !m_levels.empty(); ++steps) {
        if (steps % nodesAtOnce == nodesAtOnce - 1 && budget.isSpent())
            return false;
        if (m_reading) {
            const std::size_t before = m_reading->next;
            if (read() - before > nodesAtOnce && budget.isSpent())
                return false;
            continue;
        }
        Level& level = m_levels.back();
        if (level.next == level.children.size() || m_places >= mostPlaces) {
            m_levels.pop_back();
            continue;
        }
        const NxNode& node = *level.children[level.next++];
        const Matrix4d toScene = level.toScene; // entering may move the levels
        enter(node, toScene);
    }
    return true;
}

/// Returns how many positions have been read. They may have changed since the last piece.
std::size_t NodeFigures::read()
{
    Reading& reading = *m_reading;
    const std::span<const VbVec3f> positions = effectiveField(reading.mesh->positions).getValues();
    const std::size_t stop = std::min(reading.next + positionsAtOnce, positions.size());
    for (; reading.next < stop; ++reading.next) {
        if (const VbVec3f& position = positions[reading.next]; isFinitePosition(position))
            reading.figures.bounds.include(position);
    }
    const std::size_t end = std::min(reading.next, positions.size());
    if (end < positions.size())
        return end;
    // Each use holds a reference, so most meshes don't come again.
    if (reading.mesh->getRefCount() > 1)
        m_known.emplace(reading.mesh, reading.figures);
    add(reading.figures, reading.toScene);
    m_reading.reset();
    return end;
}

void NodeFigures::add(const MeshFigures& figures, const Matrix4d& toScene)
{
    m_triangles += figures.triangles;
    const NxBounds& own = figures.bounds;
    if (own.isEmpty())
        return;
    for (unsigned int corner = 0; corner < 8; ++corner) {
        const VbVec3f point((corner & 1U) != 0 ? own.max[0] : own.min[0], (corner & 2U) != 0 ? own.max[1] : own.min[1],
            (corner & 4U) != 0 ? own.max[2] : own.min[2]);
        if (const VbVec3f place = narrowed(transformPoint(point, toScene)); isFinitePosition(place))
            m_bounds.include(place);
    }
}
