#pragma once

#include "TestFiles.h"
#include "app/WindowCase.h"
#include "app/view/ViewScenes.h"

#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/handles/HandleShape.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NodePlacement.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QAction>
#include <QMouseEvent>
#include <QTreeView>

#include <cmath>
#include <numbers>

/// Scenes for the tests of handles.
namespace HandleScenes {

/// Transforms below others, also one that mirrors and one far away, each with a mesh.
inline const char* const nestedText
    = "#mrd 1.0\n"
      "Transform \"mirrored\" { scaleFactor = -2 1 1; translation = 1 0 0\n"
      "  Transform \"inner\" { translation = 1 0 0\n"
      "    Mesh \"square\" { positions = [-1 -1 0, 1 -1 0, 1 1 0, -1 1 0]; indices = [0, 1, 2, 0, 2, 3] }\n  }\n"
      "}\n"
      "MatrixTransform \"matrix\" { matrix = 1 0.5 0 0 0 1 0 0 0 0 1 0 4 0 0 1\n"
      "  Mesh \"skew\" { positions = [-1 -1 0, 1 -1 0, 1 1 0, -1 1 0]; indices = [0, 1, 2, 0, 2, 3] }\n"
      "}\n"
      "Transform \"far\" { translation = 1e6 0 0\n"
      "  Transform \"away\" { translation = 2 0 0\n"
      "    Mesh \"small\" { positions = [-1 -1 0, 1 -1 0, 1 1 0, -1 1 0]; indices = [0, 1, 2, 0, 2, 3] }\n  }\n"
      "}\n"
      "Transform \"ignoring\" { ignored translation = 2 0 0 }\n"
      "Material \"paint\" { }\n"
      "SpotLight \"lamp\" { location = -3 2 0 }\n";

} // namespace HandleScenes

/// A test of the main window that drags handles with the mouse, as a user does.
class HandleCase : public WindowCase {
protected:
    /// Gives the test a window that shows two squares.
    void startHandles()
    {
        startTool();
        writeFile(filePath("squares.mrd"), ViewScenes::squaresText);
        writeFile(filePath("nested.mrd"), HandleScenes::nestedText);
        show("squares.mrd");
    }

    void show(const char* name)
    {
        QCOMPARE(open(filePath(name)), QString());
        QTRY_VERIFY(view()->drawing().isStarted());
        view()->setStyle(ViewScenes::withoutLines(view()->style()));
        view()->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        static_cast<void>(picture());
    }

    /// Selects a node and presses the key of some handles.
    void choose(const QString& path, Qt::Key key)
    {
        QVERIFY(m_window->selectPath(path));
        view()->setFocus();
        QTest::keyClick(view(), key);
        static_cast<void>(picture());
    }

    [[nodiscard]] meridane::PictureProjection projection()
    {
        return {view()->viewpoint(), static_cast<double>(view()->width()), static_cast<double>(view()->height())};
    }
    [[nodiscard]] VbVec3d pivot()
    {
        const std::vector<NxNode*> path = tree()->model()->path(tree()->selected());
        meridane::Matrix4d parent;
        for (std::size_t i = 0; i + 1 < path.size(); ++i)
            parent = meridane::multiply(meridane::localTransformOf(*path[i]), parent);
        return meridane::NodePlacement(*path.back(), parent).pivot();
    }
    /// A place on an arm of handles with the axes of the scene, from the pivot at 0 to the tip at 1.
    [[nodiscard]] QPoint onArm(int axis, double part)
    {
        VbVec3d direction;
        direction[static_cast<std::size_t>(axis)] = 1;
        return onArm(axis, part, direction);
    }
    [[nodiscard]] QPoint onArm(int /*axis*/, double part, const VbVec3d& direction)
    {
        const double size = projection().unitsPerPoint(pivot()) * HandleShape::armLength * part;
        const auto place = projection().placeOf(meridane::add(pivot(), meridane::scaled(direction, size)));
        return {qRound((*place)[0]), qRound((*place)[1])};
    }
    /// A place on the ring about the z axis, seen from the front.
    [[nodiscard]] QPoint onRing(double degrees)
    {
        const auto center = projection().placeOf(pivot());
        const double angle = degrees * std::numbers::pi / 180;
        return {qRound((*center)[0] + HandleShape::armLength * std::cos(angle)),
            qRound((*center)[1] - HandleShape::armLength * std::sin(angle))};
    }

    void press(const QPoint& place, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mousePress(view(), Qt::LeftButton, modifiers, place);
    }
    void move(
        const QPoint& place, Qt::KeyboardModifiers modifiers = Qt::NoModifier, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event(QEvent::MouseMove, place, view()->mapToGlobal(place), Qt::NoButton, button, modifiers);
        QApplication::sendEvent(view(), &event);
        AppScenes::runSensors();
    }
    void release(const QPoint& place) { QTest::mouseRelease(view(), Qt::LeftButton, Qt::NoModifier, place); }
    void type(const QString& text)
    {
        for (const QChar character : text)
            QTest::keyClick(view(), character.toLatin1());
    }

    [[nodiscard]] QString fieldText(const QString& name)
    {
        const QAbstractItemModel* const model = m_window->findChild<QTreeView*>(QStringLiteral("fieldTable"))->model();
        const QModelIndexList found = model->match(
            model->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive | Qt::MatchWrap);
        return found.isEmpty() ? QString() : found.front().siblingAtColumn(1).data().toString();
    }

    QImage picture() { return view()->grab().toImage(); }
    QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }
    SceneView* view() { return m_window->findChild<SceneView*>(); }
    SceneTreePanel* tree() { return m_window->findChild<SceneTreePanel*>(); }
    NxTransform* transform(int index)
    {
        return dynamic_cast<NxTransform*>(m_window->document().scene()->getChild(index));
    }
};
