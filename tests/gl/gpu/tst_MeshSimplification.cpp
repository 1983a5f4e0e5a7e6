#include "meridane/gl/gpu/detail/MeshSimplification.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QTest>

#include <cstdint>
#include <vector>

namespace {

using Indices = std::vector<std::uint32_t>;

/// A mesh of points between (0, 0, 0) and (10, 10, 0).
struct Points {
    explicit Points(const std::vector<VbVec3f>& positions, int primitive = NxMesh::POINTS)
    {
        mesh->positions.setValues(positions);
        mesh->primitive.setValue(primitive);
        shape.bounds.include(VbVec3f(0, 0, 0));
        shape.bounds.include(VbVec3f(10, 10, 0));
        shape.vertexCount = static_cast<std::uint32_t>(positions.size());
        shape.primitive = static_cast<std::uint8_t>(primitive);
    }

    NxRef<NxMesh> mesh{new NxMesh};
    meridane::MeshShape shape;
};

} // namespace

class TestMeshSimplification : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneOfThePointsInACellIsKept()
    {
        const Points points({{0, 0, 0}, {1, 1, 0}, {9, 1, 0}, {10, 0, 0}, {0.5F, 2, 0}, {10, 10, 0}});
        const meridane::SimplifiedMesh result = meridane::simplified(*points.mesh, points.shape, 2);
        QCOMPARE(result.positions, (std::vector<VbVec3f>{{0, 0, 0}, {9, 1, 0}, {10, 10, 0}}));
        QCOMPARE(result.indices, (Indices{0, 1, 2}));
    }

    void aTriangleThatCollapsesIsLeftOut()
    {
        Points points({{0, 0, 0}, {1, 1, 0}, {10, 0, 0}, {10, 10, 0}}, NxMesh::TRIANGLES);
        points.mesh->indices.setValues(std::vector<int>{0, 1, 2, 1, 2, 3});
        points.shape.hasIndices = true;
        const meridane::SimplifiedMesh result = meridane::simplified(*points.mesh, points.shape, 2);
        QCOMPARE(result.positions, (std::vector<VbVec3f>{{0, 0, 0}, {10, 0, 0}, {10, 10, 0}}));
        QCOMPARE(result.indices, (Indices{0, 1, 2}));
    }

    void eachListFollowsTheFirstVertexOfACell()
    {
        Points points({{0, 0, 0}, {10, 0, 0}, {1, 0, 0}});
        points.mesh->normals.setValues(std::vector<VbVec3f>{{1, 0, 0}, {0, 0, 1}, {0, 1, 0}});
        points.mesh->textureCoordinates.setValues(std::vector<VbVec2f>{{0, 0}, {1, 0}, {0.1F, 0}});
        points.mesh->colors.setValues(std::vector<VbVec4f>{{1, 0, 0, 1}, {0, 1, 0, 1}, {0, 0, 1, 1}});
        points.shape.hasNormals = true;
        points.shape.hasCoordinates = true;
        points.shape.colors = meridane::MeshShape::Colors::Each;
        const meridane::SimplifiedMesh result = meridane::simplified(*points.mesh, points.shape, 2);
        QCOMPARE(result.positions, (std::vector<VbVec3f>{{0, 0, 0}, {10, 0, 0}}));
        QCOMPARE(result.normals, (std::vector<VbVec3f>{{1, 1, 0}, {0, 0, 1}})); // the sum of those in the cell
        QCOMPARE(result.coordinates, (std::vector<VbVec2f>{{0, 0}, {1, 0}}));
        QCOMPARE(result.colors, (std::vector<VbVec4f>{{1, 0, 0, 1}, {0, 1, 0, 1}}));
    }

    void listsThatTheMeshLacksStayEmpty()
    {
        Points points({{0, 0, 0}, {10, 0, 0}, {1, 0, 0}});
        points.shape.colors = meridane::MeshShape::Colors::One;
        const meridane::SimplifiedMesh result = meridane::simplified(*points.mesh, points.shape, 2);
        QCOMPARE(result.positions.size(), std::size_t{2});
        QVERIFY(result.normals.empty());
        QVERIFY(result.coordinates.empty());
        QVERIFY(result.colors.empty());
    }

    void aMeshWithoutSizeCollapses()
    {
        Points points({{3, 3, 3}, {3, 3, 3}, {3, 3, 3}}, NxMesh::TRIANGLES);
        points.shape.bounds = NxBounds();
        points.shape.bounds.include(VbVec3f(3, 3, 3));
        const meridane::SimplifiedMesh result = meridane::simplified(*points.mesh, points.shape, 2);
        QVERIFY(result.indices.empty());
    }
};

QTEST_APPLESS_MAIN(TestMeshSimplification)
#include "tst_MeshSimplification.moc"
