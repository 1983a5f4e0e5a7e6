#include "gl/DrawingBench.h"

#include "meridane/gl/NxRayPick.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"

/// Meshes of points without indices and normals, as models of point clouds have them.
class TestPointClouds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_cloud = meshOf({{-0.5F, 0, 0}, {0.5F, 0, 0}, {0, 0.5F, 0}}, NxMesh::POINTS);
        m_cloud->colors.setValues({{1, 0, 0, 1}, {0, 1, 0, 1}, {0, 0, 1, 1}});
        const auto light = make<NxDirectionalLight>();
        light->direction.setValue(VbVec3f(0, 0, 1)); // from behind
        m_scene = groupOf({light.get(), plain(1, 1, 1).get(), m_cloud.get()});
        m_bench.drawing().setScene(m_scene.get());
    }

    void cleanup()
    {
        m_bench.drawing().setScene(nullptr);
        QCOMPARE(m_bench.takeMessages(), QStringList());
    }

    void theyShowTheirColors()
    {
        const QImage picture = m_bench.draw();
        COMPARE_PIXEL(picture, -0.5, 0, red);
        COMPARE_PIXEL(picture, 0.5, 0, green);
        COMPARE_PIXEL(picture, 0, 0.5, blue);
        COMPARE_PIXEL(picture, 0, 0, black);
    }

    void theirBoundsAreThoseOfTheirPoints()
    {
        (void)m_bench.draw();
        const auto box = m_bench.drawing().bounds(m_cloud.get());
        QCOMPARE(box.min, VbVec3f(-0.5F, 0, 0));
        QCOMPARE(box.max, VbVec3f(0.5F, 0.5F, 0));
    }

    void eachPointIsPicked()
    {
        const std::vector<VbVec3f> places{{-0.5F, 0, 0}, {0.5F, 0, 0}, {0, 0.5F, 0}};
        for (std::size_t index = 0; index < places.size(); ++index) {
            const auto hit = hitAt(places[index][0] + 0.02F, places[index][1]);
            QVERIFY(hit.has_value());
            QCOMPARE(hit->primitive, static_cast<int>(index));
        }
        QVERIFY(!hitAt(0, 0));
    }

private:
    [[nodiscard]] std::optional<NxRayHit> hitAt(float x, float y)
    {
        NxRayPick pick({VbVec3f(x, y, 10), VbVec3f(0, 0, -1)});
        pick.setTolerance(0.05F, 0);
        return pick.pick(*m_scene);
    }

    DrawingBench m_bench;
    NxRef<NxGroup> m_scene;
    NxRef<NxMesh> m_cloud;
};

QTEST_APPLESS_MAIN(TestPointClouds)
#include "tst_PointClouds.moc"
