#include "app/AppScenes.h"

#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/tree/facts/NodeToolTip.h"

#include "meridane/gl/places/NodeFigures.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <QTreeView>

using meridane::NodeFigures;
using namespace std::chrono_literals;

namespace {

/// A square of size 2 in the plane of x and y, two triangles.
NxRef<NxMesh> square()
{
    NxRef<NxMesh> mesh(new NxMesh);
    mesh->positions.setValues(
        std::vector<VbVec3f>{VbVec3f(-1, -1, 0), VbVec3f(1, -1, 0), VbVec3f(1, 1, 0), VbVec3f(-1, 1, 0)});
    mesh->indices.setValues(std::vector<int>{0, 1, 2, 0, 2, 3});
    return mesh;
}

} // namespace

/// What tool tips of the tree say of what is in a node.
class TestNodeFigures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scene = NxRef<NxGroup>(new NxGroup);
        m_transform = NxRef<NxTransform>(new NxTransform);
        m_transform->translation.setValue(VbVec3f(10, 0, 0));
        m_mesh = square();
        m_transform->addChild(m_mesh.get());
        m_scene->addChild(m_transform.get());
    }

    void trianglesAndBoundsAreThoseOfThePlace()
    {
        m_transform->addChild(m_mesh.get()); // once more
        NodeFigures figures(std::vector<NxNode*>{m_transform.get(), m_mesh.get()});
        QVERIFY(figures.advance(1h));
        QCOMPARE(figures.meshes(), std::size_t{1});
        QCOMPARE(figures.triangles(), std::uint64_t{2});
        QCOMPARE(figures.bounds().min, VbVec3f(9, -1, 0));
        QCOMPARE(figures.bounds().max, VbVec3f(11, 1, 0));
        NodeFigures all(std::vector<NxNode*>{m_transform.get()});
        QVERIFY(all.advance(1h));
        QCOMPARE(all.meshes(), std::size_t{2});
        QCOMPARE(all.triangles(), std::uint64_t{4});
        QVERIFY(all.isComplete());
        QCOMPARE(orvane::figuresText(all),
            QStringLiteral("2 meshes, 4 triangles\nBounds in the scene: 2 × 2 × 0 around 10, 0, 0"));
    }

    void manyNodesAndPositionsTakeSlices()
    {
        std::vector<VbVec3f> positions(100'000, VbVec3f(0, 0, 5));
        m_mesh->positions.setValues(positions);
        for (int i = 0; i < 20'000; ++i)
            m_scene->addChild(new NxGroup);
        NodeFigures figures(std::vector<NxNode*>{m_scene.get()});
        int slices = 1;
        while (!figures.advance(0s)) {
            ++slices;
            if (slices == 3)
                m_scene->addChild(square().get()); // it starts again
            QVERIFY(slices < 1000);
        }
        QVERIFY(slices > 10);
        QCOMPARE(figures.meshes(), std::size_t{2});
    }

    void sharedGroupsWithoutEndAreCut()
    {
        NxRef<NxGroup> level(new NxGroup);
        for (int i = 0; i < 40; ++i) {
            NxRef<NxGroup> above(new NxGroup);
            above->addChild(level.get());
            above->addChild(level.get());
            level = above;
        }
        NodeFigures figures(std::vector<NxNode*>{level.get()});
        QVERIFY(figures.advance(1h));
        QVERIFY(!figures.isComplete());
    }

    void theTipOfARowHasThem()
    {
        m_mesh->setName("arm");
        SceneTreePanel panel;
        panel.resize(400, 300);
        panel.setScene(m_scene.get());
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QWidget* const viewport = panel.view()->viewport();
        const QPoint place = panel.view()->visualRect(panel.model()->findNode(m_mesh.get())).center();
        QHelpEvent event(QEvent::ToolTip, place, viewport->mapToGlobal(place));
        QApplication::sendEvent(viewport, &event);
        QTRY_VERIFY(QToolTip::text().contains(QStringLiteral("2 triangles")));
        QVERIFY(QToolTip::text().contains(QStringLiteral("arm")));
        QVERIFY(QToolTip::text().contains(QStringLiteral("Bounds in the scene")));
        QToolTip::hideText();
    }

private:
    NxRef<NxGroup> m_scene;
    NxRef<NxTransform> m_transform;
    NxRef<NxMesh> m_mesh;
};

QTEST_MAIN(TestNodeFigures)
#include "tst_NodeFigures.moc"
