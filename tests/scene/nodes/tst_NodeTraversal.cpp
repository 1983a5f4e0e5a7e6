#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NodeTraversal.h"
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

class tst_NodeTraversal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEmptySceneHasNoNodes();
    void parentsComeBeforeTheirChildrenAndSharedNodesOnce();
    void everyUseComesWithItsDepth();
};

void tst_NodeTraversal::anEmptySceneHasNoNodes()
{
    const NxRef<NxGroup> scene = new NxGroup;
    QVERIFY(NodeTraversal(*scene).next() == nullptr);
    QVERIFY(NodeTraversal(*scene).nextUse() == nullptr);
}

void tst_NodeTraversal::parentsComeBeforeTheirChildrenAndSharedNodesOnce()
{
    const NxRef<NxGroup> scene = sharingScene();
    NodeTraversal nodes(*scene);
    std::string names;
    while (const NxNode* const node = nodes.next())
        names.append(node->getName().view()).append(" ");
    QCOMPARE(names, std::string("a m b "));
}

void tst_NodeTraversal::everyUseComesWithItsDepth()
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

QTEST_GUILESS_MAIN(tst_NodeTraversal)
#include "tst_NodeTraversal.moc"
