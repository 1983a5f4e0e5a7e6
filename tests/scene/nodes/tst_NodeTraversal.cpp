#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QTest>

#include <string>

using meridane::NodeTraversal;

namespace {

NxRef<NxGroup> namedGroup(const char* name)
{
    NxRef<NxGroup> group = new NxGroup;
    group->setName(name);
    return group;
}

/// Two groups, of which the second is used again at the top. Both hold the same mesh.
NxRef<NxGroup> sharingScene()
{
    NxRef<NxGroup> scene = new NxGroup;
    const NxRef<NxGroup> first = namedGroup("a");
    const NxRef<NxGroup> second = namedGroup("b");
    const NxRef<NxMesh> mesh = new NxMesh;
    mesh->setName("m");
    first->addChild(mesh.get());
    first->addChild(second.get());
    second->addChild(mesh.get());
    scene->addChild(first.get());
    scene->addChild(second.get());
    return scene;
}

} // namespace

class TestNodeTraversal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEmptySceneHasNoNodes()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        QVERIFY(NodeTraversal(*scene).next() == nullptr);
        QVERIFY(NodeTraversal(*scene).nextUse() == nullptr);
    }

    void parentsComeBeforeTheirChildrenAndSharedNodesOnce()
    {
        const NxRef<NxGroup> scene = sharingScene();
        NodeTraversal nodes(*scene);
        std::string names;
        while (const NxNode* const node = nodes.next())
            names.append(node->getName().view()).append(" ");
        QCOMPARE(names, std::string("a m b "));
    }

    void everyUseComesWithItsDepth()
    {
        const NxRef<NxGroup> scene = sharingScene();
        NodeTraversal nodes(*scene);
        std::string uses;
        while (const NxNode* const node = nodes.nextUse())
            uses.append(node->getName().view())
                .append(std::to_string(nodes.depth()))
                .append(nodes.isFirstUse() ? "! " : " ");
        QCOMPARE(uses, std::string("a1! m2! b2! m3 b1 "));
    }

    void everyUseComesWithItsPathAndIndices()
    {
        const NxRef<NxGroup> scene = sharingScene();
        NodeTraversal nodes(*scene);
        std::string uses;
        while (nodes.nextUse() != nullptr) {
            for (const NxNode* const node : nodes.path())
                uses.append("/").append(node->getName().view());
            for (const int index : nodes.indices())
                uses.append(" ").append(std::to_string(index));
            uses += '\n';
        }
        QCOMPARE(uses, std::string("/a 0\n/a/m 0 0\n/a/b 0 1\n/a/b/m 0 1 0\n/b 1\n"));
    }

    void theEndIsTheEnd()
    {
        const NxRef<NxGroup> scene = new NxGroup;
        const NxRef<NxGroup> group = namedGroup("last");
        scene->addChild(group.get());
        group->addChild(namedGroup("leaf").get());
        NodeTraversal nodes(*scene);
        QVERIFY(nodes.next() == group.get());
        QVERIFY(nodes.next() != nullptr);
        for (int call = 0; call < 2; ++call) {
            QVERIFY(nodes.next() == nullptr);
            QVERIFY(!nodes.isFirstUse());
            QVERIFY(nodes.path().empty());
        }
    }
};

QTEST_GUILESS_MAIN(TestNodeTraversal)
#include "tst_NodeTraversal.moc"
