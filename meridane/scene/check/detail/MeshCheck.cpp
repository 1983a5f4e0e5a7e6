#include "meridane/scene/check/detail/MeshCheck.h"

#include "meridane/scene/check/MeshPrimitives.h"
#include "meridane/scene/check/detail/WorkMeter.h"
#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <algorithm>
#include <array>

namespace meridane {
namespace {

constexpr std::size_t rowsAtOnce = 1024;

NxSceneProblem problemOf(NxMesh& mesh, NxField& field, NxProblemKind kind)
{
    NxSceneProblem problem;
    problem.kind = kind;
    problem.node = &mesh;
    problem.field = &field;
    return problem;
}

} // namespace

bool MeshCheck::step(NxMesh& mesh, WorkMeter& meter, std::vector<NxSceneProblem>& problems)
{
    // The lists may have changed since the last slice.
    const std::span<const VbVec3f> positions = effectiveField(mesh.positions).getValues();
    const std::span<const VbVec3f> normals = effectiveField(mesh.normals).getValues();
    const std::span<const int> indices = effectiveField(mesh.indices).getValues();
    const std::size_t corners = cornersOf(primitiveOf(mesh));
    const auto run = [&](std::size_t size, std::size_t unit, auto each) {
        while (m_at + unit <= size && !meter.isSpent()) {
            const std::size_t begin = m_at;
            const std::size_t end = std::min(size, m_at + rowsAtOnce * unit);
            for (; m_at + unit <= end; m_at += unit)
                each(m_at);
            meter.count(m_at - begin);
        }
        if (m_at + unit <= size)
            return false;
        m_at = 0;
        return true;
    };
    bool isDone = true;
    while (isDone && m_stage != Stage::Done) {
        switch (m_stage) {
        case Stage::Positions:
            isDone = run(positions.size(), 1, [&](std::size_t row) { checkPosition(positions[row], row); });
            break;
        case Stage::Normals:
            isDone = run(normals.size(), 1, [&](std::size_t row) { checkNormal(normals[row], row); });
            break;
        case Stage::Indices:
            isDone = run(indices.size(), 1, [&](std::size_t row) {
                if (indices[row] < 0 || static_cast<std::size_t>(indices[row]) >= positions.size())
                    m_outOfRange.add(row);
            });
            break;
        case Stage::Faces:
            isDone = run(indices.empty() ? positions.size() : indices.size(), corners,
                [&](std::size_t first) { checkFace(positions, indices, first, corners); });
            break;
        case Stage::Done:
            break;
        }
        if (isDone)
            m_stage = static_cast<Stage>(static_cast<int>(m_stage) + 1);
    }
    if (isDone)
        report(mesh, problems);
    return isDone;
}

void MeshCheck::checkPosition(const VbVec3f& position, std::size_t row)
{
    if (!isUsable(position))
        m_uselessPositions.add(row);
}

void MeshCheck::checkNormal(const VbVec3f& normal, std::size_t row)
{
    if (normal == VbVec3f())
        m_zeroNormals.add(row);
    else if (isUsable(normal) && !hasUnitLength(normal))
        m_longNormals.add(row);
}

void MeshCheck::checkFace(
    std::span<const VbVec3f> positions, std::span<const int> indices, std::size_t first, std::size_t corners)
{
    std::array<VbVec3f, 3> places;
    for (std::size_t corner = 0; corner < corners; ++corner) {
        const std::size_t index = indices.empty() ? first + corner : static_cast<std::size_t>(indices[first + corner]);
        if (index >= positions.size() || !isUsable(positions[index]))
            return;
        places[corner] = positions[index];
    }
    ++m_usableFaces;
    if (isDegenerate(std::span(places).first(corners)))
        m_degenerate.add(first);
}

bool MeshCheck::isDegenerate(std::span<const VbVec3f> corners) const
{
    if (corners.size() == 2)
        return corners[0] == corners[1];
    return corners.size() == 3 && hasNoArea(corners[0], corners[1], corners[2]);
}

void MeshCheck::report(NxMesh& mesh, std::vector<NxSceneProblem>& problems) const
{
    const std::span<const VbVec3f> positions = effectiveField(mesh.positions).getValues();
    if (positions.empty()) {
        problems.push_back(problemOf(mesh, mesh.positions, NxProblemKind::NoPositions));
        return;
    }
    reportFaces(mesh, problems);
    reportCounts(mesh, problems);
    const auto reportNormals = [&](const Rows& rows, NxProblemKind kind) {
        if (rows.count == 0)
            return;
        NxSceneProblem& problem = problems.emplace_back(problemOf(mesh, mesh.normals, kind));
        problem.row = static_cast<int>(rows.first);
        problem.count = rows.count;
        problem.total = effectiveField(mesh.normals).getValues().size();
        problem.isMendable = true;
    };
    reportNormals(m_zeroNormals, NxProblemKind::ZeroNormal);
    reportNormals(m_longNormals, NxProblemKind::NormalLength);
}

void MeshCheck::reportFaces(NxMesh& mesh, std::vector<NxSceneProblem>& problems) const
{
    const std::span<const VbVec3f> positions = effectiveField(mesh.positions).getValues();
    const std::span<const int> indices = effectiveField(mesh.indices).getValues();
    const std::size_t corners = cornersOf(primitiveOf(mesh));
    const std::size_t count = indices.empty() ? positions.size() : indices.size();
    NxField& list = indices.empty() ? static_cast<NxField&>(mesh.positions) : mesh.indices;
    // A list of indices that becomes empty would mean all positions, and one that is ignored means nothing.
    const bool canSetIndices = !mesh.indices.isIgnored();
    const bool isAnythingLeft = canSetIndices && m_usableFaces > 0;
    if (m_uselessPositions.count > 0) {
        NxSceneProblem& problem
            = problems.emplace_back(problemOf(mesh, mesh.positions, NxProblemKind::PositionNotFinite));
        problem.row = static_cast<int>(m_uselessPositions.first);
        problem.count = m_uselessPositions.count;
        problem.total = positions.size();
        problem.isMendable = isAnythingLeft;
    }
    if (m_outOfRange.count > 0) {
        NxSceneProblem& problem = problems.emplace_back(problemOf(mesh, mesh.indices, NxProblemKind::IndexOutOfRange));
        problem.row = static_cast<int>(m_outOfRange.first);
        problem.count = m_outOfRange.count;
        problem.total = indices.size();
        problem.limit = positions.size();
        problem.isMendable = isAnythingLeft;
    }
    if (count % corners != 0) {
        NxSceneProblem& problem = problems.emplace_back(problemOf(mesh, list, NxProblemKind::IncompletePrimitive));
        problem.row = static_cast<int>(count / corners * corners);
        problem.total = count;
        problem.limit = corners;
        problem.detail = indices.empty() ? "positions" : "indices";
        problem.isMendable = isAnythingLeft;
    }
    if (m_degenerate.count > 0) {
        NxSceneProblem& problem = problems.emplace_back(problemOf(mesh, list, NxProblemKind::DegenerateFaces));
        problem.row = static_cast<int>(m_degenerate.first);
        problem.count = m_degenerate.count;
        problem.total = count / corners;
        problem.detail = corners == 2 ? "lines" : "triangles";
        problem.isMendable = canSetIndices && m_usableFaces > m_degenerate.count;
    }
}

void MeshCheck::reportCounts(NxMesh& mesh, std::vector<NxSceneProblem>& problems) const
{
    const std::size_t positions = effectiveField(mesh.positions).getValues().size();
    const auto reportCount = [&](NxMField& field, std::size_t count, NxProblemKind kind) {
        if (count == 0 || count == positions)
            return;
        NxSceneProblem& problem = problems.emplace_back(problemOf(mesh, field, kind));
        problem.count = count;
        problem.total = positions;
    };
    reportCount(mesh.normals, effectiveField(mesh.normals).getValues().size(), NxProblemKind::NormalCount);
    const std::size_t colors = effectiveField(mesh.colors).getValues().size();
    if (colors != 1)
        reportCount(mesh.colors, colors, NxProblemKind::ColorCount);
    reportCount(mesh.textureCoordinates, effectiveField(mesh.textureCoordinates).getValues().size(),
        NxProblemKind::CoordinateCount);
}

} // namespace meridane
