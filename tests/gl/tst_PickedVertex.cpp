#include "meridane/gl/NxRayPick.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QTest>

#include <vector>

/// The vertex that is nearest to where a ray hits a mesh.
class TestPickedVertex : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesTheNearestVertex_data()
    {
        QTest::addColumn<std::vector<int>>("indices");
        QTest::addColumn<int>("primitive");
        QTest::addColumn<float>("x");
        QTest::addColumn<float>("y");
        QTest::addColumn<int>("vertex");
        QTest::addColumn<int>("corner");
        const std::vector<int> none;
        const std::vector<int> twice{2, 1, 0, 1, 2, 0};
        QTest::newRow("first") << none << int{NxMesh::TRIANGLES} << 0.2F << 0.3F << 0 << 0;
        QTest::newRow("second") << none << int{NxMesh::TRIANGLES} << 1.6F << 0.1F << 1 << 1;
        QTest::newRow("third") << none << int{NxMesh::TRIANGLES} << 0.2F << 1.5F << 2 << 2;
        QTest::newRow("by its index") << twice << int{NxMesh::TRIANGLES} << 0.2F << 1.5F << 2 << 0;
        QTest::newRow("end of a line") << std::vector<int>{0, 1, 1, 2} << int{NxMesh::LINES} << 0.9F << 1.1F << 2 << 3;
        QTest::newRow("point") << std::vector<int>{2, 1} << int{NxMesh::POINTS} << 2.02F << 0.02F << 1 << 1;
    }
    void namesTheNearestVertex()
    {
        QFETCH(const std::vector<int>, indices);
        QFETCH(const int, primitive);
        QFETCH(const float, x);
        QFETCH(const float, y);
        const NxRef<NxMesh> mesh(new NxMesh);
        mesh->positions.setValues(std::vector<VbVec3f>{VbVec3f(0, 0, 0), VbVec3f(2, 0, 0), VbVec3f(0, 2, 0)});
        mesh->indices.setValues(indices);
        mesh->primitive.setValue(primitive);
        const NxRef<NxGroup> scene(new NxGroup);
        scene->addChild(mesh.get());
        NxRayPick pick({VbVec3f(x, y, 10), VbVec3f(0, 0, -1)});
        pick.setTolerance(0.1F, 0);
        const auto hit = pick.pick(*scene);
        QVERIFY(hit.has_value());
        QTEST(hit->vertex, "vertex");
        QTEST(hit->corner, "corner");
    }
};

QTEST_MAIN(TestPickedVertex)
#include "tst_PickedVertex.moc"
