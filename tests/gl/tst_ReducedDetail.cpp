#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxTransform.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int side = 200;
constexpr int steps = 120; // of the ball: more vertices than the picture needs

/// Works until all meshes in view are reduced.
void reduceAll(NxSceneDrawing& drawing)
{
    QTRY_VERIFY_WITH_TIMEOUT((drawing.reduceMeshes([] { return false; }), !drawing.isReducing()), 60'000);
}

/// A picture of what is between -1 and 1.
QImage pictureOf(DrawingBench& bench, float error, const NxViewpoint& viewpoint = DrawingBench::front())
{
    return bench.draw(viewpoint, side, side, error);
}

bool isCovered(const QImage& picture, int x, int y)
{
    return picture.rect().contains(x, y) && picture.pixelColor(x, y) != black;
}

/// Whether every pixel that only one of the pictures covers is within `pixels` of one at which they agree that there
/// is nothing, and of one at which they agree that there is something.
bool isNearOf(const QImage& picture, const QImage& other, int pixels)
{
    const auto agreesNear = [&](int x, int y, bool covered) {
        for (int i = -pixels; i <= pixels; ++i) {
            for (int j = -pixels; j <= pixels; ++j) {
                if (isCovered(picture, x + i, y + j) == covered && isCovered(other, x + i, y + j) == covered)
                    return true;
            }
        }
        return false;
    };
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (isCovered(picture, x, y) != isCovered(other, x, y)
                && !(agreesNear(x, y, false) && agreesNear(x, y, true)))
                return false;
        }
    }
    return true;
}

} // namespace

class TestReducedDetail : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSilhouetteStaysWithinTheError_data()
    {
        QTest::addColumn<float>("error");
        for (const float error : {1.0F, 2.0F, 4.0F})
            QTest::addRow("%g pixels", static_cast<double>(error)) << error;
    }

    void theSilhouetteStaysWithinTheError()
    {
        QFETCH(const float, error);
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.9F, steps);
        bench.drawing().setScene(mesh.get());
        NxViewpoint viewpoint = DrawingBench::front();
        const QImage first = pictureOf(bench, 0, viewpoint);
        const std::uint64_t all = bench.counts().drawnTriangles;
        QCOMPARE(bench.counts().fullCorners, all * 3);
        reduceAll(bench.drawing());
        for (int turn = 0; turn < 3; ++turn) {
            const QImage full = pictureOf(bench, 0, viewpoint);
            const QImage reduced = pictureOf(bench, error, viewpoint);
            QVERIFY(bench.counts().drawnTriangles < all / 10);
            QCOMPARE(bench.counts().fullCorners, all * 3);
            QVERIFY(isNearOf(reduced, full, static_cast<int>(error)));
            viewpoint.orbit(0.7F, 0.3F);
        }
    }

    void fullDetailIsTheSameBeforeAndAfter()
    {
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.9F, steps);
        bench.drawing().setScene(mesh.get());
        const QImage before = pictureOf(bench, 0);
        QCOMPARE(pictureOf(bench, 4), before); // nothing is reduced yet
        reduceAll(bench.drawing());
        QVERIFY(pictureOf(bench, 4) != before);
        QCOMPARE(pictureOf(bench, 0), before);
    }

    void aSmallMeshKeepsItsDetail()
    {
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.9F, 12);
        bench.drawing().setScene(mesh.get());
        const QImage before = pictureOf(bench, 0);
        reduceAll(bench.drawing());
        QCOMPARE(pictureOf(bench, 4), before);
    }

    void instancesAreReducedByTheirSize()
    {
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.5F, steps);
        NxRef<NxTransform> small = make<NxTransform>();
        small->scaleFactor.setValue(VbVec3f(0.05F, 0.05F, 0.05F));
        small->translation.setValue(VbVec3f(0.8F, 0.8F, 0));
        small->addChild(mesh.get());
        const NxRef<NxGroup> both = groupOf({mesh.get(), small.get()});
        bench.drawing().setScene(both.get());
        static_cast<void>(pictureOf(bench, 0));
        reduceAll(bench.drawing());
        static_cast<void>(pictureOf(bench, 2));
        const std::uint64_t withSmall = bench.counts().drawnTriangles;
        both->removeChild(1);
        static_cast<void>(pictureOf(bench, 2));
        const std::uint64_t large = bench.counts().drawnTriangles;
        QVERIFY(withSmall - large < large);
        QVERIFY(withSmall > large);
    }

    void aMeshThatChangesWhileItIsReducedIsReducedAsItIsThen()
    {
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.9F, steps);
        bench.drawing().setScene(mesh.get());
        static_cast<void>(pictureOf(bench, 0));
        int asked = 0;
        bench.drawing().reduceMeshes([&] { return ++asked > 1; }); // copies a part
        QVERIFY(bench.drawing().isReducing());
        const NxRef<NxMesh> smaller = ball(0.4F, steps);
        mesh->positions.copyFrom(smaller->positions);
        bench.drawing().reduceMeshes([&] { return false; });
        const QImage full = pictureOf(bench, 0);
        reduceAll(bench.drawing());
        const QImage reduced = pictureOf(bench, 2);
        QVERIFY(bench.counts().drawnTriangles * 30 < bench.counts().fullCorners);
        QVERIFY(isNearOf(reduced, full, 2));
    }

    void aMeshThatChangesAfterwardsIsDrawnAsItIs()
    {
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.9F, steps);
        bench.drawing().setScene(mesh.get());
        static_cast<void>(pictureOf(bench, 0));
        reduceAll(bench.drawing());
        static_cast<void>(pictureOf(bench, 2));
        const NxRef<NxMesh> smaller = ball(0.4F, steps);
        mesh->positions.copyFrom(smaller->positions);
        QCOMPARE(pictureOf(bench, 2), pictureOf(bench, 0));
        reduceAll(bench.drawing());
        QVERIFY(isNearOf(pictureOf(bench, 2), pictureOf(bench, 0), 2));
    }

    void aMeshMayGoWhileItIsReduced()
    {
        DrawingBench bench;
        NxRef<NxGroup> scene = groupOf({ball(0.9F, steps).get(), ball(0.5F, steps).get()});
        bench.drawing().setScene(scene.get());
        static_cast<void>(pictureOf(bench, 0));
        int asked = 0;
        bench.drawing().reduceMeshes([&] { return ++asked > 1; });
        scene->removeAllChildren();
        bench.drawing().reduceMeshes([] { return false; });
        QVERIFY(!isCovered(pictureOf(bench, 2), side / 2, side / 2));
        bench.drawing().setScene(nullptr);
        QTRY_VERIFY((bench.drawing().reduceMeshes([] { return false; }), !bench.drawing().isReducing()));
    }

    void reducedMeshesTakeLessMemoryThanTheMeshes()
    {
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.9F, steps);
        bench.drawing().setScene(mesh.get());
        static_cast<void>(pictureOf(bench, 0));
        const std::uint64_t full = bench.counts().bufferBytes;
        reduceAll(bench.drawing());
        for (const float error : {0.5F, 1.0F, 2.0F, 4.0F, 8.0F, 16.0F, 32.0F})
            static_cast<void>(pictureOf(bench, error));
        QVERIFY(bench.counts().bufferBytes > full);
        QVERIFY(bench.counts().bufferBytes < full + full / 2);
    }

    void anotherContextStartsAgain()
    {
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.9F, steps);
        bench.drawing().setScene(mesh.get());
        static_cast<void>(pictureOf(bench, 0));
        reduceAll(bench.drawing());
        const QImage reduced = pictureOf(bench, 2);
        bench.loseContext();
        QCOMPARE(pictureOf(bench, 2), pictureOf(bench, 0));
        reduceAll(bench.drawing());
        QCOMPARE(pictureOf(bench, 2), reduced);
    }
};

QTEST_MAIN(TestReducedDetail)
#include "tst_ReducedDetail.moc"
