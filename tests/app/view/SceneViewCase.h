#pragma once

#include "app/view/ViewScenes.h"
#include "gl/FloatMatrices.h"

#include "orvane/app/view/SceneView.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

#include <memory>
#include <vector>

/// A test of a view that shows two squares.
class SceneViewCase : public QObject {
protected:
    /// Shows the squares from the front, without grid and axes.
    void showSquares()
    {
        m_scene = ViewScenes::squares();
        m_view = std::make_unique<SceneView>();
        m_view->resize(600, 400);
        m_view->setScene(m_scene.get(), QString());
        m_view->show();
        QTRY_VERIFY(m_view->drawing().isStarted());
        m_view->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        m_view->setStyle(ViewScenes::withoutLines(m_view->style()));
        static_cast<void>(picture());
    }

    /// Closes the view, which must leave nothing behind.
    void endView()
    {
        m_view.reset();
        m_scene = NxRef<NxGroup>();
        qunsetenv("ORVANE_VIEW");
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    [[nodiscard]] QImage picture() const { return m_view->grab().toImage(); }
    /// After events, as the user would see it.
    [[nodiscard]] QImage shown() const
    {
        QCoreApplication::processEvents();
        AppScenes::runSensors();
        return picture();
    }
    [[nodiscard]] NxNode* child(int group, int index) const
    {
        return m_scene->getChild(group)->getChildren()[static_cast<std::size_t>(index)];
    }

    /// The pixel of a point in the plane of the squares.
    [[nodiscard]] QPoint at(float x, float y) const
    {
        const float aspect = static_cast<float>(m_view->width()) / static_cast<float>(m_view->height());
        const VbMatrix matrix = meridane::multiply(
            meridane::viewMatrix(m_view->viewpoint()), m_view->viewpoint().projectionMatrix(aspect, 0.1F, 1000));
        const VbVec3f place = meridane::transformPoint(VbVec3f(x, y, 0), matrix);
        return {qRound((place[0] + 1) / 2 * static_cast<float>(m_view->width())),
            qRound((1 - place[1]) / 2 * static_cast<float>(m_view->height()))};
    }

    void select(const std::vector<NxNode*>& nodes)
    {
        m_view->setSelectedPath(nodes);
        AppScenes::runSensors();
    }

    void drag(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(m_view.get(), button, modifiers, from);
        constexpr int steps = 4;
        for (int step = 1; step <= steps; ++step) {
            const QPointF place = QPointF(from) + QPointF(to - from) * step / steps;
            QMouseEvent move(QEvent::MouseMove, place, m_view->mapToGlobal(place), Qt::NoButton, button, modifiers);
            QApplication::sendEvent(m_view.get(), &move);
        }
        QTest::mouseRelease(m_view.get(), button, modifiers, to);
    }

    void turnWheel(const QPoint& place, int delta)
    {
        QWheelEvent event(place, m_view->mapToGlobal(place), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_view.get(), &event);
    }

    NxRef<NxGroup> m_scene;
    std::unique_ptr<SceneView> m_view;
};
