#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxTransform.h"

namespace {

constexpr int side = 120;
constexpr std::uint64_t some = 5'000;

/// Opaque and translucent balls, lines, and something selected.
NxRef<NxGroup> sceneOfAllKinds(DrawingBench& bench)
{
    const NxRef<NxMesh> large = ball(0.7F, 100);
    const NxRef<NxMesh> second = ball(0.5F, 60);
    NxRef<NxTransform> place = make<NxTransform>();
    place->translation.setValue(VbVec3f(0.4F, 0.4F, 0));
    place->addChild(plain(1, 0, 0, 0.5F).get());
    place->addChild(second.get());
    NxRef<NxGroup> scene = groupOf({plain(0.2F, 0.6F, 0.9F).get(), large.get(),
        meshOf({{-1, -1, 0}, {1, 1, 0}}, NxMesh::LINES).get(), place.get()});
    bench.drawing().setScene(scene.get());
    bench.drawing().setSelectedNode(second.get());
    bench.restyle([](NxDrawingStyle& style) {
        style.grid = true;
        style.wires = true;
        style.boundingBoxes = true;
    });
    return scene;
}

} // namespace

class TestPictureInParts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void manyPartsMakeTheSamePicture()
    {
        DrawingBench bench;
        const NxRef<NxGroup> scene = sceneOfAllKinds(bench);
        const QImage atOnce = bench.draw(DrawingBench::front(), side, side);
        int parts = 0;
        const QImage inParts = bench.drawInParts(DrawingBench::front(), side, side, some, parts);
        QVERIFY(parts > 5);
        QCOMPARE(inParts, atOnce);
    }

    void outlinesAreDrawnInPartsToo()
    {
        DrawingBench bench;
        const NxRef<NxMesh> mesh = ball(0.7F, 100);
        bench.drawing().setScene(mesh.get());
        int plainParts = 0;
        const QImage plainPicture = bench.drawInParts(DrawingBench::front(), side, side, some, plainParts);
        bench.drawing().setSelectedNode(mesh.get());
        const QImage atOnce = bench.draw(DrawingBench::front(), side, side);
        int parts = 0;
        const QImage inParts = bench.drawInParts(DrawingBench::front(), side, side, some, parts);
        QVERIFY(plainParts > 5);
        QVERIFY(parts >= 2 * plainParts - 1);
        QVERIFY(atOnce != plainPicture);
        QCOMPARE(inParts, atOnce);
        bench.drawing().setOtherSelectedNodes(std::vector<NxNode*>{mesh.get()});
        bench.drawing().setHoveredPath({});
        int moreParts = 0;
        QCOMPARE(bench.drawInParts(DrawingBench::front(), side, side, some, moreParts),
            bench.draw(DrawingBench::front(), side, side));
        QVERIFY(moreParts > parts);
    }

    void aChangedSceneCantBeFinished()
    {
        DrawingBench bench;
        const NxRef<NxGroup> scene = sceneOfAllKinds(bench);
        static_cast<void>(bench.draw(DrawingBench::front(), side, side));
        const DrawingTarget target(bench.gl(), side, side);
        bench.drawing().begin(DrawingBench::front(), side, side, 1);
        QCOMPARE(bench.drawing().proceed(some), NxPictureState::Unfinished);
        scene->removeAllChildren();
        QCOMPARE(bench.drawing().proceed(some), NxPictureState::Outdated);
        QCOMPARE(bench.drawing().proceed(some), NxPictureState::Outdated);
    }

    void anotherPictureEndsTheOneBefore()
    {
        DrawingBench bench;
        const NxRef<NxGroup> scene = sceneOfAllKinds(bench);
        const DrawingTarget target(bench.gl(), side, side);
        bench.drawing().begin(DrawingBench::front(), side, side, 1);
        QCOMPARE(bench.drawing().proceed(some), NxPictureState::Unfinished);
        bench.drawing().draw(DrawingBench::front(), side, side, 1, 4);
        QCOMPARE(bench.drawing().proceed(some), NxPictureState::Outdated);
        bench.drawing().begin(DrawingBench::front(), side, side, 1);
        QVERIFY(!bench.drawing().seenIn({0, 0, side, side}, DrawingBench::front(), side, side, 1).empty());
        QCOMPARE(bench.drawing().proceed(some), NxPictureState::Outdated);
    }

    void questionsBetweenPartsChangeNothing()
    {
        DrawingBench bench;
        const NxRef<NxGroup> scene = sceneOfAllKinds(bench);
        const DrawingTarget target(bench.gl(), side, side);
        bench.drawing().begin(DrawingBench::front(), side, side, 1);
        NxPictureState state = NxPictureState::Unfinished;
        while (state == NxPictureState::Unfinished) {
            QVERIFY(!bench.drawing().bounds().isEmpty());
            bench.drawing().reduceMeshes([] { return false; });
            state = bench.drawing().proceed(some);
        }
        QCOMPARE(state, NxPictureState::Finished);
    }

    void anEmptySceneIsFinishedAtOnce()
    {
        DrawingBench bench;
        const DrawingTarget target(bench.gl(), side, side);
        bench.drawing().begin(DrawingBench::front(), side, side, 1);
        QCOMPARE(bench.drawing().proceed(1), NxPictureState::Finished);
    }
};

QTEST_MAIN(TestPictureInParts)
#include "tst_PictureInParts.moc"
