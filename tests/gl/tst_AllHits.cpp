#include "meridane/gl/NxRayPick.h"
#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <vector>

using namespace meridane;

/// All meshes that a ray hits.
class TestAllHits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void areInOrder()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        std::vector<NxRef<NxTransform>> moved;
        for (const float depth : {-2.F, 1.F, -5.F, 0.F}) {
            moved.emplace_back(new NxTransform);
            moved.back()->translation.setValue(VbVec3f(0, 0, depth));
            const NxRef<NxMesh> mesh(new NxMesh);
            mesh->positions.setValues(std::vector<VbVec3f>{VbVec3f(0, 0, 0), VbVec3f(2, 0, 0), VbVec3f(0, 2, 0)});
            moved.back()->addChild(mesh.get());
            scene->addChild(moved.back().get());
        }
        const NxRayPick pick({VbVec3d(0.5, 0.5, 10), VbVec3f(0, 0, -1)});
        const std::vector<NxRayHit> hits = pick.pickAll(*scene, 10);
        QCOMPARE(hits.size(), std::size_t{4});
        const std::vector<std::size_t> order{1, 3, 0, 2};
        for (std::size_t i = 0; i < order.size(); ++i) {
            const NxTransform& wanted = *moved[order[i]];
            QCOMPARE(hits[i].path.front(), moved[order[i]].get());
            const VbVec3d point(0.5, 0.5, static_cast<double>(wanted.translation.getValue()[2]));
            QVERIFY(length(subtract(hits[i].point, point)) < 1e-5);
        }
        QCOMPARE(pick.pick(*scene)->path, hits.front().path);
        const std::vector<NxRayHit> first = pick.pickAll(*scene, 2);
        QCOMPARE(first.size(), std::size_t{2});
        QCOMPARE(first.back().path.front(), moved[3].get());
        QVERIFY(NxRayPick({VbVec3d(50, 0, 10), VbVec3f(0, 0, -1)}).pickAll(*scene, 10).empty());
    }
};

QTEST_APPLESS_MAIN(TestAllHits)
#include "tst_AllHits.moc"
