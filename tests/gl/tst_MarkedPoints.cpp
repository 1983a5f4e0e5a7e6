#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxTransform.h"

#include <limits>

/// Points that are marked in the picture.
class TestMarkedPoints : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_mesh = rectangle(-0.9F, -0.9F, 0.9F, 0.9F);
        m_material = plain(0, 0, 0);
        m_material->emissiveColor.setValue(VbColor(0, 0, 1));
        m_transform = make<NxTransform>();
        m_transform->addChild(m_mesh.get());
        m_scene = groupOf({m_material.get(), m_transform.get()});
        m_bench.drawing().setScene(m_scene.get());
        m_bench.restyle([](NxDrawingStyle& style) {
            style.markColor = VbColor(1, 1, 1);
            style.markBorderColor = VbColor(1, 0, 0);
            style.markSize = 15;
        });
    }
    void cleanup()
    {
        m_bench.drawing().setScene(nullptr);
        QCOMPARE(m_bench.takeMessages(), QStringList());
    }

    void aMarkHasABorder()
    {
        mark({VbVec3f(0.5F, 0, 0)});
        const QImage picture = m_bench.draw();
        COMPARE_PIXEL(picture, 0.5, 0, white);
        COMPARE_PIXEL(picture, 0.5 + 6.0 / 50, 0, red);
        COMPARE_PIXEL(picture, 0.5, 6.0 / 50, red);
        COMPARE_PIXEL(picture, 0.5 + 10.0 / 50, 0, blue);
        COMPARE_PIXEL(picture, -0.5, 0, blue);
    }

    void itIsSeenThroughEverything()
    {
        mark({VbVec3f(0, 0, -0.5F)});
        COMPARE_PIXEL(m_bench.draw(), 0, 0, white);
    }

    void itHasTheSizeOfTheScreensPoints()
    {
        mark({VbVec3f()});
        const QImage picture = m_bench.drawUntold(DrawingBench::front(), 101, 101, 2);
        COMPARE_PIXEL(picture, 0, 0, white);
        COMPARE_PIXEL(picture, 0.24, 0, red);
    }

    void itFollowsTheTransforms()
    {
        mark({VbVec3f(0.5F, 0, 0)});
        m_transform->translation.setValue(VbVec3f(-0.5F, 0.5F, 0));
        QImage picture = m_bench.draw();
        COMPARE_PIXEL(picture, 0, 0.5, white);
        COMPARE_PIXEL(picture, 0.4, 0, blue);
        m_transform->scaleFactor.setValue(VbVec3f(-1, 1, 1));
        picture = m_bench.draw();
        COMPARE_PIXEL(picture, -1 + 1.0 / 50, 0.5, white);
    }

    void marksAreReplacedAndRemoved()
    {
        mark({VbVec3f(0.5F, 0, 0), VbVec3f(-0.5F, 0, 0)});
        static_cast<void>(m_bench.draw());
        mark({VbVec3f(0, 0.5F, 0)});
        QImage picture = m_bench.draw();
        COMPARE_PIXEL(picture, 0.5, 0, blue);
        COMPARE_PIXEL(picture, 0, 0.5, white);
        mark({});
        COMPARE_PIXEL(m_bench.draw(), 0, 0.5, blue);
        mark({VbVec3f(0, 0.5F, 0)});
        m_bench.drawing().setScene(nullptr);
        m_bench.drawing().setScene(m_scene.get());
        COMPARE_PIXEL(m_bench.draw(), 0, 0.5, blue);
    }

    void theChangeHookIsCalledOnceForWhatChanges()
    {
        int calls = 0;
        static_cast<void>(m_bench.draw());
        m_bench.drawing().setChangeHook([&calls] { ++calls; });
        mark({});
        QCOMPARE(calls, 0);
        mark({VbVec3f()});
        mark({VbVec3f(1, 0, 0)});
        QCOMPARE(calls, 1);
        m_bench.drawing().setChangeHook({});
    }

    void theyArePreciseFarFromTheOrigin()
    {
        const VbVec3f far(1e7F, 1e7F, 0);
        m_transform->translation.setValue(VbVec3f(-1e7F, -1e7F, 0));
        mark({VbVec3f(1e7F + 1, 1e7F, 0), far});
        COMPARE_PIXEL(m_bench.draw(), 0, 0, white);
    }

    void onesThatArentFiniteAreLeftOut()
    {
        constexpr float infinity = std::numeric_limits<float>::infinity();
        constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
        mark({VbVec3f(noNumber, 0, 0), VbVec3f(0, infinity, 0), VbVec3f(0, 0.5F, 0)});
        const QImage picture = m_bench.draw();
        COMPARE_PIXEL(picture, 0, 0.5, white);
        COMPARE_PIXEL(picture, 0, 0, blue);
    }

    void theyComeBackWithANewContext()
    {
        mark({VbVec3f(0.5F, 0, 0)});
        static_cast<void>(m_bench.draw());
        m_bench.loseContext();
        COMPARE_PIXEL(m_bench.draw(), 0.5, 0, white);
    }

private:
    void mark(std::vector<VbVec3f> points)
    {
        const std::vector<NxNode*> path{m_transform.get(), m_mesh.get()};
        m_bench.drawing().setMarkedPoints(path, std::move(points));
    }

    DrawingBench m_bench;
    NxRef<NxMesh> m_mesh;
    NxRef<NxMaterial> m_material;
    NxRef<NxTransform> m_transform;
    NxRef<NxGroup> m_scene;
};

QTEST_MAIN(TestMarkedPoints)
#include "tst_MarkedPoints.moc"
