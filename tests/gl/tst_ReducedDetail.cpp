#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxTransform.h"

#include <algorithm>
#include <span>
#include <utility>
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

/// Turns all triangles around.
void turn(NxMesh& mesh)
{
    const std::span<const int> all = mesh.indices.getValues();
    std::vector<int> indices(all.begin(), all.end());
    for (std::size_t first = 0; first + 2 < indices.size(); first += 3)
        std::swap(indices[first], indices[first + 1]);
    mesh.indices.setValues(std::move(indices));
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

    void manyMeshesKeepTheirSilhouettesAndLoseTriangles()
    {
        constexpr int across = 4;
        constexpr float error = 2;
        DrawingBench bench;
        const NxRef<NxGroup> scene = make<NxGroup>();
        const NxRef<NxMesh> shared = ball(0.15F, steps / 2);
        for (int i = 0; i < across * across; ++i) {
            NxRef<NxTransform> place = make<NxTransform>();
            place->translation.setValue(VbVec3f(
                -0.75F + 0.5F * static_cast<float>(i % across), -0.75F + 0.5F * static_cast<float>(i / across), 0));
            place->addChild(i % 2 == 0 ? shared.get() : ball(0.2F, steps / 2).get());
            scene->addChild(place.get());
        }
        bench.drawing().setScene(scene.get());
        NxViewpoint viewpoint = DrawingBench::front();
        static_cast<void>(pictureOf(bench, 0, viewpoint));
        reduceAll(bench.drawing());
        for (int turn = 0; turn < 3; ++turn) {
            const QImage full = pictureOf(bench, 0, viewpoint);
            const QImage reduced = pictureOf(bench, error, viewpoint);
            QVERIFY(bench.counts().drawnTriangles * 10 < bench.counts().fullCorners / 3);
            QVERIFY(isNearOf(reduced, full, static_cast<int>(error)));
            viewpoint.orbit(0.2F, 0.1F);
        }
    }

    void theSideThatIsSeenIsTheSame_data()
    {
        QTest::addColumn<float>("mirror");
        QTest::addColumn<bool>("isTurned");
        QTest::newRow("a ball") << 1.0F << false;
        QTest::newRow("a ball inside out") << 1.0F << true;
        QTest::newRow("a mirrored ball") << -1.0F << false;
        QTest::newRow("a mirrored ball inside out") << -1.0F << true;
    }

    // The hidden side of a closed mesh isn't drawn; it is darker, since it is farther away from the light.
    void theSideThatIsSeenIsTheSame()
    {
        QFETCH(const float, mirror);
        QFETCH(const bool, isTurned);
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.9F, steps);
        if (isTurned)
            turn(*mesh);
        NxRef<NxTransform> transform = make<NxTransform>();
        transform->scaleFactor.setValue(VbVec3f(mirror, 1, 1));
        transform->addChild(mesh.get());
        bench.drawing().setScene(transform.get());
        bench.restyle([](NxDrawingStyle& style) { style.shading = NxDrawingStyle::NORMALS; });
        const QImage full = pictureOf(bench, 0);
        reduceAll(bench.drawing());
        const QImage reduced = pictureOf(bench, 2);
        QVERIFY(bench.counts().drawnTriangles * 10 < bench.counts().fullCorners / 3);
        for (const double x : {-0.5, 0.0, 0.4})
            QVERIFY2(isNear(pixelAt(reduced, x, 0.3), pixelAt(full, x, 0.3), 25),
                text(pixelAt(reduced, x, 0.3)).constData());
    }

    void theInsideIsSeenThroughASectionAndFromInside()
    {
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.9F, 230); // of so many triangles that it is reduced however near it is
        bench.drawing().setScene(mesh.get());
        static_cast<void>(pictureOf(bench, 0));
        reduceAll(bench.drawing());
        bench.restyle([](NxDrawingStyle& style) {
            style.section.isOn = true;
            style.section.normal = VbVec3f(0, 0, 1);
        });
        QVERIFY(isNearOf(pictureOf(bench, 2), pictureOf(bench, 0), 2));
        QVERIFY(isCovered(pictureOf(bench, 2), side / 2, side / 2));
        bench.restyle([](NxDrawingStyle& style) { style.section.isOn = false; });
        NxViewpoint inside = DrawingBench::front();
        inside.projection = NxViewpoint::PERSPECTIVE;
        inside.position = VbVec3d(0, 0, 0);
        QVERIFY(isCovered(pictureOf(bench, 2, inside), side / 2, side / 2));
        QVERIFY(bench.counts().drawnTriangles * 2 < bench.counts().fullCorners / 3);
    }

    void coarserMeshesAreUploadedWithAReducedOne()
    {
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.9F, steps);
        bench.drawing().setScene(mesh.get());
        static_cast<void>(pictureOf(bench, 0));
        reduceAll(bench.drawing());
        static_cast<void>(pictureOf(bench, 1));
        const std::uint64_t uploads = bench.counts().meshUploads;
        const std::uint64_t triangles = bench.counts().drawnTriangles;
        static_cast<void>(pictureOf(bench, 8));
        QVERIFY(bench.counts().drawnTriangles < triangles);
        QCOMPARE(bench.counts().meshUploads, uploads);
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
