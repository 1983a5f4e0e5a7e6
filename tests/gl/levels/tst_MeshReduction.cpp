#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/gl/levels/detail/MeshReduction.h"
#include "meridane/gl/levels/detail/ReductionThread.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>
#include <set>
#include <utility>

using namespace meridane;

namespace {

/// A closed ball of radius 1 with bumps, whose vertices are shared by its triangles.
MeshCopy ball(int rows)
{
    MeshCopy mesh;
    const int columns = 2 * rows;
    const auto number = [&](int row, int column) {
        if (row == 0)
            return 0U;
        if (row == rows)
            return 1U;
        return static_cast<std::uint32_t>(2 + (row - 1) * columns + column % columns);
    };
    const auto place = [&](int row, int column) {
        const float up = std::numbers::pi_v<float> * static_cast<float>(row) / static_cast<float>(rows);
        const float around = 2 * std::numbers::pi_v<float> * static_cast<float>(column) / static_cast<float>(columns);
        const float size = 1 + 0.1F * std::sin(5 * up) * std::cos(7 * around);
        return VbVec3f(
            size * std::sin(up) * std::cos(around), size * std::cos(up), size * std::sin(up) * std::sin(around));
    };
    mesh.positions = {place(0, 0), place(rows, 0)};
    for (int row = 1; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            mesh.positions.push_back(place(row, column));
    }
    for (const VbVec3f& position : mesh.positions)
        mesh.normals.push_back(normalized(position, VbVec3f(0, 1, 0)));
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const std::uint32_t corners[4]
                = {number(row, column), number(row, column + 1), number(row + 1, column), number(row + 1, column + 1)};
            if (row > 0)
                mesh.indices.insert(mesh.indices.end(), {corners[0], corners[1], corners[2]});
            if (row + 1 < rows)
                mesh.indices.insert(mesh.indices.end(), {corners[1], corners[3], corners[2]});
        }
    }
    return mesh;
}

/// The sides of a cube of `steps` squares along each edge, each side with vertices and a normal of its own.
MeshCopy cube(int steps)
{
    MeshCopy mesh;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        for (const float side : {-1.0F, 1.0F}) {
            const auto first = static_cast<std::uint32_t>(mesh.positions.size());
            for (int i = 0; i <= steps * (steps + 2); ++i) {
                VbVec3f position;
                position[axis] = side;
                position[(axis + 1) % 3] = -1 + 2 * static_cast<float>(i % (steps + 1)) / static_cast<float>(steps);
                position[(axis + 2) % 3] = -1 + 2 * static_cast<float>(i / (steps + 1)) / static_cast<float>(steps);
                VbVec3f normal;
                normal[axis] = side;
                mesh.positions.push_back(position);
                mesh.normals.push_back(normal);
            }
            for (int i = 0; i < steps * steps; ++i) {
                const auto corner = first + static_cast<std::uint32_t>(i / steps * (steps + 1) + i % steps);
                const auto above = corner + static_cast<std::uint32_t>(steps) + 1;
                mesh.indices.insert(mesh.indices.end(), {corner, corner + 1, above, corner + 1, above + 1, above});
            }
        }
    }
    return mesh;
}

/// The same with all triangles turned around.
MeshCopy turned(MeshCopy mesh)
{
    for (std::size_t first = 0; first < mesh.indices.size(); first += 3)
        std::swap(mesh.indices[first], mesh.indices[first + 1]);
    return mesh;
}

/// Both meshes in one, the second with half of its size.
MeshCopy oneInTheOther(MeshCopy mesh, const MeshCopy& inner)
{
    const auto first = static_cast<std::uint32_t>(mesh.positions.size());
    for (const VbVec3f& position : inner.positions)
        mesh.positions.push_back(scaled(position, 0.5));
    mesh.normals.insert(mesh.normals.end(), inner.normals.begin(), inner.normals.end());
    for (const std::uint32_t index : inner.indices)
        mesh.indices.push_back(first + index);
    return mesh;
}

/// The distance of a point from a triangle.
double distanceTo(const VbVec3f& point, const VbVec3f& a, const VbVec3f& b, const VbVec3f& c)
{
    const auto toEdge = [&](const VbVec3f& from, const VbVec3f& to) {
        const VbVec3f way = subtract(to, from);
        const double share = std::clamp(dot(subtract(point, from), way) / std::max(dot(way, way), 1e-30), 0.0, 1.0);
        return length(subtract(point, add(from, scaled(way, share))));
    };
    const double nearest = std::min({toEdge(a, b), toEdge(b, c), toEdge(c, a)});
    const VbVec3f normal = normalized(cross(subtract(b, a), subtract(c, a)), VbVec3f());
    const auto isInside = [&](const VbVec3f& from, const VbVec3f& to) {
        return dot(cross(subtract(to, from), subtract(point, from)), normal) >= 0;
    };
    const bool isAbove = isInside(a, b) && isInside(b, c) && isInside(c, a);
    return isAbove && length(normal) > 0 ? std::abs(dot(subtract(point, a), normal)) : nearest;
}

double distanceTo(const VbVec3f& point, const MeshCopy& mesh, const ReducedMesh& level)
{
    double nearest = std::numeric_limits<double>::max();
    const auto corner = [&](std::size_t i) { return mesh.positions[level.positions[level.indices[i]]]; };
    for (std::size_t first = 0; first < level.indices.size(); first += 3)
        nearest = std::min(nearest, distanceTo(point, corner(first), corner(first + 1), corner(first + 2)));
    return nearest;
}

std::vector<ReducedMesh> reduced(const MeshCopy& mesh)
{
    const std::atomic<bool> isCancelled = false;
    return reducedMeshes(mesh, isCancelled);
}

NxBounds boundsOf(const MeshCopy& mesh, const std::vector<std::uint32_t>& vertices)
{
    NxBounds bounds;
    for (const std::uint32_t vertex : vertices)
        bounds.include(mesh.positions[vertex]);
    return bounds;
}

float greatestDifference(const NxBounds& left, const NxBounds& right)
{
    float greatest = 0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        greatest = std::max(
            {greatest, std::abs(left.min[axis] - right.min[axis]), std::abs(left.max[axis] - right.max[axis])});
    }
    return greatest;
}

/// Edges at which an odd number of triangles meet, which surround a hole.
std::size_t openEdges(const ReducedMesh& mesh)
{
    std::map<std::pair<std::uint32_t, std::uint32_t>, int> edges;
    for (std::size_t i = 0; i < mesh.indices.size(); ++i) {
        const std::uint32_t from = mesh.positions[mesh.indices[i]];
        const std::uint32_t to = mesh.positions[mesh.indices[i % 3 == 2 ? i - 2 : i + 1]];
        ++edges[std::minmax(from, to)];
    }
    return static_cast<std::size_t>(
        std::count_if(edges.begin(), edges.end(), [](const auto& edge) { return edge.second % 2 != 0; }));
}

} // namespace

class TestMeshReduction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void levelsGetCoarserAndTakeLessThanTheMesh()
    {
        const MeshCopy mesh = ball(60);
        const std::vector<ReducedMesh> levels = reduced(mesh);
        QVERIFY(levels.size() >= 3);
        std::size_t all = 0;
        for (std::size_t i = 0; i < levels.size(); ++i) {
            all += levels[i].indices.size();
            QCOMPARE(levels[i].indices.size() % 3, std::size_t{0});
            QCOMPARE(levels[i].vertices.size(), levels[i].positions.size());
            QVERIFY(levels[i].indices.size() <= (i == 0 ? mesh.indices.size() / 4 : levels[i - 1].indices.size() / 2));
            QVERIFY(i == 0 || levels[i].error > levels[i - 1].error);
        }
        QVERIFY(all <= mesh.indices.size() / 2);
    }

    void boundsAreKept()
    {
        const MeshCopy mesh = ball(60);
        const NxBounds bounds = boundsOf(mesh, mesh.indices);
        for (const ReducedMesh& level : reduced(mesh)) {
            const float difference = greatestDifference(boundsOf(mesh, level.positions), bounds);
            QVERIFY2(difference <= level.error * 1.5F,
                qPrintable(QStringLiteral("%1, error %2").arg(difference).arg(level.error)));
        }
    }

    // The error is that of an average over the surroundings of each vertex.
    void noVertexIsMuchFartherFromTheReducedMeshThanItsError()
    {
        constexpr double most = 2;
        const MeshCopy mesh = ball(40);
        for (const ReducedMesh& level : reduced(mesh)) {
            for (std::size_t i = 0; i < mesh.positions.size(); i += 29) {
                const double distance = distanceTo(mesh.positions[i], mesh, level);
                QVERIFY2(distance <= most * static_cast<double>(level.error),
                    qPrintable(QStringLiteral("%1, error %2").arg(distance).arg(level.error)));
            }
        }
    }

    void aClosedMeshHidesOneOfItsSides()
    {
        const std::vector<ReducedMesh> levels = reduced(ball(60));
        const std::vector<ReducedMesh> others = reduced(turned(ball(60)));
        QVERIFY(!levels.empty());
        QVERIFY(!others.empty());
        for (const ReducedMesh& level : levels)
            QCOMPARE(level.hiddenSides, HiddenSides::Back);
        for (const ReducedMesh& level : others)
            QCOMPARE(level.hiddenSides, HiddenSides::Front);
    }

    void aMeshWithAHoleHidesNone()
    {
        MeshCopy mesh = ball(60);
        mesh.indices.resize(mesh.indices.size() - 30 * mesh.corners);
        const std::vector<ReducedMesh> levels = reduced(mesh);
        QVERIFY(!levels.empty());
        QCOMPARE(levels.front().hiddenSides, HiddenSides::None);
    }

    void partsThatTurnDifferentSidesOutwardsHideNone()
    {
        const std::vector<ReducedMesh> levels = reduced(oneInTheOther(ball(60), turned(ball(60))));
        QVERIFY(!levels.empty());
        QCOMPARE(levels.front().hiddenSides, HiddenSides::None);
        const std::vector<ReducedMesh> same = reduced(oneInTheOther(ball(60), ball(60)));
        QVERIFY(!same.empty());
        QCOMPARE(same.front().hiddenSides, HiddenSides::Back);
    }

    void aClosedMeshStaysClosed()
    {
        const std::vector<ReducedMesh> levels = reduced(ball(60));
        QVERIFY(!levels.empty());
        for (const ReducedMesh& level : levels)
            QCOMPARE(openEdges(level), std::size_t{0});
    }

    // More vertices than are simplified without merging them first.
    void aLargeMeshIsReducedMuchAndStaysClosed()
    {
        const MeshCopy mesh = ball(400);
        const std::vector<ReducedMesh> levels = reduced(mesh);
        QVERIFY(levels.size() >= 3);
        QVERIFY(levels.front().indices.size() < mesh.indices.size() / 10);
        QVERIFY(levels.front().error < 0.02F);
        QCOMPARE(openEdges(levels.front()), std::size_t{0});
    }

    void sharpEdgesStaySharp()
    {
        const MeshCopy mesh = cube(20);
        const std::vector<ReducedMesh> levels = reduced(mesh);
        QVERIFY(!levels.empty());
        const ReducedMesh& level = levels.front();
        for (std::size_t first = 0; first < level.indices.size(); first += 3) {
            const auto position
                = [&](std::size_t i) { return mesh.positions[level.positions[level.indices[first + i]]]; };
            const VbVec3f area = cross(subtract(position(1), position(0)), subtract(position(2), position(0)));
            if (!(length(area) > 1e-6)) // isn't seen
                continue;
            const VbVec3f face = normalized(area, VbVec3f());
            for (std::size_t i = 0; i < 3; ++i)
                QVERIFY(std::abs(dot(mesh.normals[level.vertices[level.indices[first + i]]], face)) > 0.99);
        }
    }

    void ofPointsAndLinesThoseInACellAreMerged()
    {
        MeshCopy points = ball(60);
        points.corners = 1;
        points.indices.resize(points.positions.size());
        for (std::uint32_t i = 0; i < points.indices.size(); ++i)
            points.indices[i] = i;
        const std::vector<ReducedMesh> levels = reduced(points);
        QVERIFY(!levels.empty());
        for (const ReducedMesh& level : levels)
            QCOMPARE(
                std::set<std::uint32_t>(level.positions.begin(), level.positions.end()).size(), level.indices.size());

        MeshCopy lines = ball(60);
        lines.corners = 2;
        lines.indices.resize(lines.indices.size() / 2 * 2);
        for (const ReducedMesh& level : reduced(lines)) {
            for (std::size_t i = 0; i < level.indices.size(); i += 2)
                QVERIFY(level.positions[level.indices[i]] != level.positions[level.indices[i + 1]]);
        }
    }

    void aMeshWithoutSizeAndOneOfFewTrianglesHaveNoLevels()
    {
        MeshCopy mesh = ball(3);
        QVERIFY(reduced(mesh).empty());
        mesh = ball(20);
        std::fill(mesh.positions.begin(), mesh.positions.end(), VbVec3f(1, 2, 3));
        QVERIFY(reduced(mesh).empty());
    }

    void positionsThatNoTriangleUsesMayBeAnything()
    {
        MeshCopy mesh = ball(40);
        mesh.positions.emplace_back(std::nanf(""), 0.0F, INFINITY);
        mesh.normals.emplace_back(std::nanf(""), 0.0F, 0.0F);
        const std::vector<ReducedMesh> levels = reduced(mesh);
        QVERIFY(!levels.empty());
        QVERIFY(std::isfinite(levels.back().error));
    }

    void aCancelledReductionEndsWithoutMoreLevels()
    {
        const std::atomic<bool> isCancelled = true;
        QVERIFY(reducedMeshes(ball(60), isCancelled).empty());
    }

    void theThreadReducesOneMeshAfterTheOther()
    {
        ReductionThread thread;
        const auto job = [&] {
            auto made = std::make_shared<ReductionJob>();
            made->mesh = ball(40);
            thread.add(made);
            return made;
        };
        const std::shared_ptr<ReductionJob> first = job();
        const std::shared_ptr<ReductionJob> second = job();
        QTRY_VERIFY(second->isDone);
        QVERIFY(first->isDone);
        QCOMPARE(first->levels.size(), second->levels.size());
        QVERIFY(first->mesh.positions.empty());
    }

    void jobsThatWaitEndWithTheThread()
    {
        std::shared_ptr<ReductionJob> last;
        {
            ReductionThread thread;
            for (int i = 0; i < 20; ++i) {
                last = std::make_shared<ReductionJob>();
                last->mesh = ball(100);
                thread.add(last);
            }
        }
        QVERIFY(last.use_count() == 1);
    }
};

QTEST_APPLESS_MAIN(TestMeshReduction)
#include "tst_MeshReduction.moc"
