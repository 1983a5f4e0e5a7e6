#include "TestFiles.h"
#include "app/WindowCase.h"
#include "app/view/ViewScenes.h"

#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/CameraMenu.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

#include <QAction>
#include <QStatusBar>

using namespace meridane;

/// Cameras that get what the view shows.
class TestCameraActions : public WindowCase {
    Q_OBJECT

private:
    [[nodiscard]] SceneView* view() { return m_window->findChild<SceneView*>(); }
    [[nodiscard]] QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }
    [[nodiscard]] NxGroup* scene() { return m_window->document().scene(); }
    [[nodiscard]] NxPerspectiveCamera* camera(const char* path)
    {
        return dynamic_cast<NxPerspectiveCamera*>(NxScenePath::find(scene(), path).node());
    }
    void orbit()
    {
        NxViewpoint viewpoint = view()->viewpoint();
        viewpoint.orbit(0.5F, 0.2F);
        view()->navigate(viewpoint);
    }
    void undo() { action("edit.undo")->trigger(); }
    [[nodiscard]] bool isNear(const NxViewpoint& left, const NxViewpoint& right)
    {
        return length(subtract(left.position, right.position)) < 1e-4
            && length(subtract(left.viewDirection(), right.viewDirection())) < 1e-4
            && left.projection == right.projection;
    }

private Q_SLOTS:
    void init()
    {
        startTool();
        writeFile(filePath("scene.mrd"),
            QByteArray(ViewScenes::squaresText)
                + "Transform \"arm\" { translation = 3 0 0; rotation = 0 1 0 1\n"
                  "  PerspectiveCamera \"inner\" { }\n}\n");
        QCOMPARE(open(filePath("scene.mrd")), QString());
        QTRY_VERIFY(view()->drawing().isStarted());
        static_cast<void>(view()->grab());
        orbit();
    }
    void cleanup() { endTool(); }

    void aNewCameraLooksAsTheViewDoes()
    {
        const int before = static_cast<int>(scene()->getChildren().size());
        action("view.newCamera")->trigger();
        QCOMPARE(static_cast<int>(scene()->getChildren().size()), before + 1);
        NxNode* const node = scene()->getChild(before);
        const auto* const added = dynamic_cast<NxPerspectiveCamera*>(node);
        QVERIFY(added != nullptr);
        QVERIFY(isNear(NxViewpoint::ofCamera(*added, Matrix4d()), view()->viewpoint()));
        QCOMPARE(m_window->findChild<SceneTreePanel*>()->selectedNode(), node);
        // The name is another one than that of the camera that is there.
        QVERIFY(added->getName() != VbString("camera"));
        undo();
        QCOMPARE(static_cast<int>(scene()->getChildren().size()), before);
        view()->setProjection(NxViewpoint::ORTHOGRAPHIC);
        action("view.newCamera")->trigger();
        QVERIFY(isNear(NxViewpoint::ofCamera(dynamic_cast<NxCamera&>(*scene()->getChild(before)), Matrix4d()),
            view()->viewpoint()));
    }

    void theSelectedCameraIsSetInOneStep()
    {
        QVERIFY(!action("view.setCamera")->isEnabled());
        QVERIFY(m_window->selectPath(QStringLiteral("/arm/inner")));
        QVERIFY(action("view.setCamera")->isEnabled());
        NxPerspectiveCamera* const inner = camera("/arm/inner");
        const VbVec3f before = inner->position.getValue();
        action("view.setCamera")->trigger();
        const Matrix4d parent = localTransformOf(*NxScenePath::find(scene(), "/arm").node());
        QVERIFY(isNear(NxViewpoint::ofCamera(*inner, parent), view()->viewpoint()));
        QVERIFY(!(inner->position.getValue() == before));
        undo();
        QCOMPARE(inner->position.getValue(), before);
        QVERIFY(inner->orientation.isDefault());
        action("edit.redo")->trigger();
        QVERIFY(isNear(NxViewpoint::ofCamera(*inner, parent), view()->viewpoint()));
    }

    void theCameraThatWasLookedThroughIsSetIfNoneIsSelected()
    {
        m_window->findChild<CameraMenu*>()->follow({scene()->getChild(0)});
        QVERIFY(action("view.setCamera")->isEnabled());
        orbit();
        action("view.setCamera")->trigger();
        QVERIFY(isNear(NxViewpoint::ofCamera(*camera("/camera"), Matrix4d()), view()->viewpoint()));
        // Removed, it is none any more.
        QVERIFY(m_window->selectPath(QStringLiteral("/camera")));
        action("node.delete")->trigger();
        m_window->findChild<SceneTreePanel*>()->select(QModelIndex());
        QVERIFY(!action("view.setCamera")->isEnabled());
    }

    void aCameraOfAnotherProjectionKeepsItsOwn()
    {
        QVERIFY(m_window->selectPath(QStringLiteral("/camera")));
        view()->setProjection(NxViewpoint::ORTHOGRAPHIC);
        action("view.setCamera")->trigger();
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("projections")));
        QVERIFY(length(subtract(VbVec3d(camera("/camera")->position.getValue()), view()->viewpoint().position)) < 1e-4);
    }

    void anIgnoredFieldIsNotWritten()
    {
        camera("/camera")->orientation.setIgnored(1);
        const VbVec3f before = camera("/camera")->position.getValue();
        QVERIFY(m_window->selectPath(QStringLiteral("/camera")));
        action("view.setCamera")->trigger();
        QCOMPARE(camera("/camera")->position.getValue(), before);
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("orientation")));
    }
};

QTEST_MAIN(TestCameraActions)
#include "tst_CameraActions.moc"
