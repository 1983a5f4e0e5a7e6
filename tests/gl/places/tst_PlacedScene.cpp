#include "base/HandlerGuard.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/errors/NxDebugError.h"
#include "meridane/gl/places/detail/PlacedScene.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <chrono>
#include <functional>
#include <set>
#include <vector>

using namespace meridane;

namespace {

PlacedScene::Listener deaf()
{
    return {[] {}, [](MeshRecord&) {}, [](TextureRecord&) {}};
}

NxRef<NxMesh> triangle(float x = 0)
{
    NxRef<NxMesh> mesh = new NxMesh;
    mesh->positions.setValues({{x, 0, 0}, {x + 1, 0, 0}, {x, 1, 0}});
    return mesh;
}

/// The left sides of all meshes that are placed.
std::multiset<float> leftSides(PlacedScene& scene)
{
    std::multiset<float> sides;
    for (const Id id : scene.itemsBelow(scene.root()))
        sides.insert(scene.tree().boundsOf(id).min[0]);
    return sides;
}

using Sides = std::multiset<float>;

/// Replaces a child by a new node at the address of the old one, or gives up after many attempts.
template <typename Node>
NxRef<Node> replaceAtTheSameAddress(NxGroup& group, int index)
{
    const void* const former = group.getChild(index);
    group.removeChild(index);
    std::vector<NxRef<Node>> others;
    for (int attempt = 0; attempt < 10'000; ++attempt) {
        NxRef<Node> node = new Node;
        if (node.get() == former) {
            group.insertChild(node.get(), index);
            return node;
        }
        others.push_back(std::move(node));
    }
    return {};
}

using Fill = std::function<void(NxGroup&, int)>;

} // namespace

class TestPlacedScene : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { NxDelayQueue::getDefault().process(); }

    void aNodeAtTheAddressOfADeadOneTakesItsPlace()
    {
        const NxRef<NxTransform> scene = new NxTransform;
        const NxRef<NxTransform> other = new NxTransform;
        scene->addChild(triangle().get());
        scene->addChild(other.get());
        PlacedScene placed(deaf());
        placed.setRoot(scene.get());
        // The queue reports only this change before the next picture.
        other->translation.setValue(VbVec3f(0, 1, 0));
        const auto mesh = replaceAtTheSameAddress<NxMesh>(*scene, 0);
        if (!mesh)
            QSKIP("the allocator doesn't give addresses out again");
        QVERIFY(NxDelayQueue::getDefault().process(std::chrono::nanoseconds(0)));
        placed.update();
        NxDelayQueue::getDefault().process();
        placed.update();
        mesh->positions.setValues({{5, 0, 0}, {6, 0, 0}, {5, 1, 0}});
        NxDelayQueue::getDefault().process();
        placed.update();
        QCOMPARE(leftSides(placed), Sides{5});
        QCOMPARE(placed.itemsBelow(mesh.get()).size(), 1U);
    }

    void aChildThatDiesBelowAMovedTransformIsGone()
    {
        const NxRef<NxTransform> scene = new NxTransform;
        scene->addChild(triangle().get());
        scene->addChild(triangle(10).get());
        PlacedScene placed(deaf());
        placed.setRoot(scene.get());
        scene->translation.setValue(VbVec3f(3, 0, 0));
        scene->removeChild(0);
        NxDelayQueue::getDefault().process();
        placed.update();
        QCOMPARE(leftSides(placed), Sides{13});
    }

    void aGroupThatDiesBelowAMovedTransformIsGone()
    {
        const NxRef<NxTransform> scene = new NxTransform;
        for (int i = 0; i < 2; ++i) {
            NxRef<NxTransform> outer = new NxTransform;
            NxRef<NxTransform> inner = new NxTransform;
            inner->addChild(triangle(static_cast<float>(10 * i)).get());
            outer->addChild(inner.get());
            scene->addChild(outer.get());
        }
        PlacedScene placed(deaf());
        placed.setRoot(scene.get());
        for (const bool isTold : {true, false}) {
            scene->translation.setValue(VbVec3f(isTold ? 3.0F : 5.0F, 0, 0));
            static_cast<NxGroup*>(scene->getChild(0))->removeChild(0);
            if (isTold)
                NxDelayQueue::getDefault().process();
            placed.update();
            QCOMPARE(leftSides(placed), isTold ? Sides{13} : Sides{});
            scene->removeChild(0);
        }
    }

    void aNodeOfTheFormerSceneIsFollowed()
    {
        const NxRef<NxGroup> former = new NxGroup;
        const NxRef<NxGroup> scene = new NxGroup;
        const NxRef<NxMesh> shared = triangle();
        former->addChild(shared.get());
        scene->addChild(shared.get());
        PlacedScene placed(deaf());
        placed.setRoot(former.get());
        shared->positions.setValues({{7, 0, 0}, {8, 0, 0}, {7, 1, 0}});
        placed.setRoot(scene.get());
        QCOMPARE(leftSides(placed), Sides{7});
    }

    void aRenamedGroupKeepsItsPlaces()
    {
        const NxRef<NxSwitch> scene = new NxSwitch;
        scene->whichChild.setValue(NxSwitch::ALL);
        scene->addChild(triangle().get());
        PlacedScene placed(deaf());
        placed.setRoot(scene.get());
        const std::uint64_t structure = placed.structure();
        scene->setName(VbString("other"));
        placed.update();
        QCOMPARE(placed.structure(), structure);
        scene->whichChild.setValue(NxSwitch::NONE);
        placed.update();
        QCOMPARE(leftSides(placed), Sides{});
    }

    void anEditAtTheLimitOfPlacesKeepsWhatIsPlaced()
    {
        TextRecorder recorder;
        const HandlerGuard<NxDebugError> warnings(&TextRecorder::record, &recorder);
        const NxRef<NxGroup> scene = new NxGroup;
        for (int i = 0; i < 6; ++i)
            scene->addChild(triangle(static_cast<float>(i)).get());
        PlacedScene placed(deaf(), 6);
        placed.setRoot(scene.get());
        QCOMPARE(leftSides(placed), (Sides{0, 1, 2, 3}));
        const NxRef<NxGroup> group = new NxGroup;
        group->addChild(triangle(10).get());
        scene->insertChild(group.get(), 0);
        placed.update();
        QCOMPARE(leftSides(placed), (Sides{0, 1, 2, 3}));
        // The mesh on the left. The group takes its place, but there is no place left for its children.
        scene->removeChild(1);
        placed.update();
        QCOMPARE(leftSides(placed), (Sides{1, 2, 3}));
        scene->removeChild(0);
        placed.update();
        QCOMPARE(leftSides(placed), (Sides{1, 2, 3, 4}));
        QCOMPARE(recorder.texts().size(), 1U);
        QVERIFY(recorder.texts().front().find("more than 6 places") != std::string::npos);
    }

    void nodesWithoutPlacesEndAtALimitToo()
    {
        TextRecorder recorder;
        const HandlerGuard<NxDebugError> guard(TextRecorder::record, &recorder);
        const NxRef<NxGroup> many = new NxGroup;
        many->addChild(triangle().get());
        for (int i = 0; i < 100; ++i)
            many->addChild(new NxMaterial);
        many->addChild(triangle(5).get());
        const NxRef<NxGroup> scene = new NxGroup;
        scene->addChild(many.get());
        PlacedScene placed(deaf(), 10);
        placed.setRoot(scene.get());
        QCOMPARE(leftSides(placed), Sides{0});
        QCOMPARE(recorder.texts(),
            std::vector<std::string>{
                "The scene has more than 10 places of groups and meshes; the others aren't drawn"});
    }

    void whatWasLeftOutComesInWhenThereIsRoom()
    {
        TextRecorder recorder;
        const HandlerGuard<NxDebugError> warnings(&TextRecorder::record, &recorder);
        const NxRef<NxGroup> scene = new NxGroup;
        for (int i = 0; i < 2; ++i) {
            const NxRef<NxGroup> group = new NxGroup;
            for (int j = 0; j < 5; ++j)
                group->addChild(triangle(static_cast<float>(10 * i + j)).get());
            scene->addChild(group.get());
        }
        PlacedScene placed(deaf(), 12);
        placed.setRoot(scene.get());
        QCOMPARE(leftSides(placed), (Sides{0, 1, 2, 3, 4, 10, 11, 12}));
        auto* const group = static_cast<NxGroup*>(scene->getChild(0));
        group->removeChild(0);
        placed.update();
        group->removeChild(0);
        placed.update();
        QCOMPARE(leftSides(placed), (Sides{2, 3, 4, 10, 11, 12}));
        group->removeChild(0);
        placed.update();
        QCOMPARE(leftSides(placed), (Sides{3, 4, 10, 11, 12, 13, 14}));
    }

    void aChildAmongUsesOfOneNodeCostsWhatItCostsAmongSeparateOnes_data()
    {
        QTest::addColumn<Fill>("fill");
        const NxRef<NxMesh> mesh = triangle();
        const NxRef<NxGroup> group = new NxGroup;
        group->addChild(mesh.get());
        QTest::newRow("a mesh") << Fill([mesh](NxGroup& scene, int uses) {
            while (scene.getNumChildren() < uses)
                scene.addChild(mesh.get());
        });
        QTest::newRow("a group") << Fill([group](NxGroup& scene, int uses) {
            while (scene.getNumChildren() < uses)
                scene.addChild(group.get());
        });
        QTest::newRow("a mesh with many materials") << Fill([mesh](NxGroup& scene, int uses) {
            while (scene.getNumChildren() < 2 * uses) {
                scene.addChild(NxRef<NxMaterial>(new NxMaterial).get());
                scene.addChild(mesh.get());
            }
        });
        QTest::newRow("separate meshes") << Fill([](NxGroup& scene, int uses) {
            while (scene.getNumChildren() < uses)
                scene.addChild(triangle().get());
        });
    }

    void aChildAmongUsesOfOneNodeCostsWhatItCostsAmongSeparateOnes()
    {
        QFETCH(Fill, fill);
        constexpr int uses = 4000;
        const NxRef<NxGroup> scene = new NxGroup;
        fill(*scene, uses);
        PlacedScene placed(deaf());
        placed.setRoot(scene.get());
        const std::uint64_t before = placed.steps();
        scene->addChild(triangle().get());
        placed.update();
        QCOMPARE(placed.itemsBelow(scene.get()).size(), uses + 1U);
        const auto steps = static_cast<double>(placed.steps() - before);
        QVERIFY2(steps >= uses && steps < 10.0 * uses, qPrintable(QString::number(steps)));
    }
};

QTEST_APPLESS_MAIN(TestPlacedScene)
#include "tst_PlacedScene.moc"
