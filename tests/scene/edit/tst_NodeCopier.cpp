#include "scene/RandomScene.h"

#include "meridane/scene/edit/NodeCopier.h"
#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QTest>

class TestNodeCopier : public QObject {
    Q_OBJECT

private:
    static NxRef<NxGroup> read(const char* text)
    {
        NxSceneReader reader(std::string("#mrd 1.0\n") + text, "test.mrd");
        reader.run();
        return reader.takeScene();
    }

private Q_SLOTS:
    void copiesWholeScenesExactly()
    {
        for (unsigned int seed = 0; seed < 40; ++seed) {
            const NxRef<NxGroup> scene = makeRandomScene(seed);
            const std::string before = NxSceneWriter::toText(scene.get());
            meridane::NodeCopier copier;
            const NxRef<NxNode> copy = copier.copy(*scene);
            QVERIFY(copy);
            const std::string difference = findDifference(*scene, static_cast<const NxGroup&>(*copy));
            QVERIFY2(difference.empty(), difference.c_str());
            QCOMPARE(NxSceneWriter::toText(static_cast<NxGroup*>(copy.get())), before);
            QCOMPARE(NxSceneWriter::toText(scene.get()), before);
        }
    }

    void nodesThatShareOneShareItsCopy()
    {
        const NxRef<NxGroup> scene = read("Group \"a\" { Mesh \"m\" {} }\nGroup \"b\" { use \"m\" }");
        meridane::NodeCopier copier;
        const NxRef<NxNode> a = copier.copy(*scene->getChild(0));
        const NxRef<NxNode> b = copier.copy(*scene->getChild(1));
        QCOMPARE(a->getChildren().front(), b->getChildren().front());
        QVERIFY(a->getChildren().front() != scene->getChild(0)->getChildren().front());
        meridane::NodeCopier other;
        QVERIFY(other.copy(*scene->getChild(1))->getChildren().front() != b->getChildren().front());
    }

    void copiesUnknownNodesWithTheirFields()
    {
        const NxRef<NxGroup> scene = read("Gadget \"g\" { size = 3; ignored what = [1, 2] ; Mesh {} }");
        meridane::NodeCopier copier;
        const NxRef<NxGroup> top(new NxGroup);
        top->addChild(copier.copy(*scene->getChild(0)).get());
        QCOMPARE(NxSceneWriter::toText(top.get()), NxSceneWriter::toText(scene.get()));
    }

    void copiesDeepNests()
    {
        NxRef<NxGroup> top(new NxGroup);
        for (int i = 0; i < 100'000; ++i) {
            const NxRef<NxGroup> above(new NxGroup);
            above->addChild(top.get());
            top = above;
        }
        meridane::NodeCopier copier;
        const NxRef<NxNode> copy = copier.copy(*top);
        int depth = 0;
        for (const NxNode* node = copy.get(); !node->getChildren().empty(); node = node->getChildren().front())
            ++depth;
        QCOMPARE(depth, 100'000);
    }

    void copiesANodeAloneWithoutThoseBelow()
    {
        const NxRef<NxGroup> scene
            = read("Transform \"t\" { translation = 1 2 3; ignored rotation = 1 0 0 1; Mesh {} }");
        const NxRef<NxNode> copy = meridane::NodeCopier::copyAlone(*scene->getChild(0));
        QVERIFY(copy->getChildren().empty());
        const NxRef<NxGroup> top(new NxGroup);
        top->addChild(copy.get());
        const std::string text = NxSceneWriter::toText(top.get());
        QVERIFY(text.find("translation = 1 2 3") != std::string::npos);
        QVERIFY(text.find("ignored rotation") != std::string::npos);
    }
};

QTEST_APPLESS_MAIN(TestNodeCopier)
#include "tst_NodeCopier.moc"
