#include "app/view/SceneViewCase.h"

#include "orvane/app/view/navigation/FlyTool.h"

#include <QShortcut>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

using namespace meridane;

Q_DECLARE_METATYPE(VbVec3f)

/// Flying with the right button and keys.
class TestFlyTool : public SceneViewCase {
    Q_OBJECT

private:
    using Time = std::chrono::steady_clock::time_point;

    void press(const QPoint& place) { QTest::mousePress(m_view.get(), Qt::RightButton, Qt::NoModifier, place); }
    void release(const QPoint& place) { QTest::mouseRelease(m_view.get(), Qt::RightButton, Qt::NoModifier, place); }
    void moveTo(const QPoint& place)
    {
        QMouseEvent move(QEvent::MouseMove, place, m_view->mapToGlobal(QPointF(place)), Qt::NoButton, Qt::RightButton,
            Qt::NoModifier);
        QApplication::sendEvent(m_view.get(), &move);
    }
    /// A key is held for that long.
    void hold(Qt::Key key, std::chrono::milliseconds time, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyPress(m_view.get(), key, modifiers);
        m_now += time;
        QTest::keyRelease(m_view.get(), key, modifiers);
    }
    [[nodiscard]] const VbVec3d& position() const { return m_view->viewpoint().position; }

    Time m_now;
    FlyTool* m_tool = nullptr;
    QPoint m_middle{300, 200};

private Q_SLOTS:
    void init()
    {
        showSquares();
        m_tool = new FlyTool(m_view.get(), [this] { return m_now; });
    }
    void cleanup() { endView(); }

    void fliesByKeys_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<VbVec3f>("way");
        QTest::newRow("on") << Qt::Key_W << VbVec3f(0, 0, -1);
        QTest::newRow("back") << Qt::Key_S << VbVec3f(0, 0, 1);
        QTest::newRow("left") << Qt::Key_A << VbVec3f(-1, 0, 0);
        QTest::newRow("right") << Qt::Key_D << VbVec3f(1, 0, 0);
        QTest::newRow("down") << Qt::Key_Q << VbVec3f(0, -1, 0);
        QTest::newRow("up") << Qt::Key_E << VbVec3f(0, 1, 0);
    }
    void fliesByKeys()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const VbVec3f, way);
        const VbVec3d before = position();
        const QSignalSpy moved(m_view.get(), &SceneView::moved);
        press(m_middle);
        hold(key, std::chrono::milliseconds(100));
        const VbVec3d expected = scaled(VbVec3d(way), m_tool->speed() * 0.1);
        QVERIFY(length(expected) > 0.01);
        QVERIFY(length(subtract(subtract(position(), before), expected)) < 1e-5);
        QVERIFY(!moved.isEmpty());
        // Neither without the key nor without the button.
        const VbVec3d after = position();
        m_now += std::chrono::seconds(1);
        release(m_middle);
        hold(key, std::chrono::milliseconds(100));
        QCOMPARE(position(), after);
        QVERIFY(m_view->hasMoved());
    }

    /// The timer draws the flight while nothing else happens.
    void fliesWhileAKeyIsHeld()
    {
        const VbVec3d before = position();
        press(m_middle);
        QTest::keyPress(m_view.get(), Qt::Key_W);
        QCOMPARE(position(), before);
        m_now += std::chrono::milliseconds(50);
        QTRY_VERIFY(position()[2] < before[2]);
        const double first = position()[2];
        m_now += std::chrono::milliseconds(50);
        QTRY_VERIFY(position()[2] < first);
        // A repeat of the key by the keyboard is neither a press nor a release.
        QKeyEvent up(QEvent::KeyRelease, Qt::Key_W, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(m_view.get(), &up);
        const double second = position()[2];
        m_now += std::chrono::milliseconds(50);
        QTRY_VERIFY(position()[2] < second);
        QTest::keyRelease(m_view.get(), Qt::Key_W);
        release(m_middle);
    }

    void theMouseLooksAround()
    {
        const VbVec3d before = position();
        press(m_middle);
        moveTo(m_middle + QPoint(60, 0));
        QVERIFY(m_view->viewpoint().viewDirection()[0] > 0.1F);
        QVERIFY(std::abs(m_view->viewpoint().viewDirection()[1]) < 1e-4F);
        moveTo(m_middle + QPoint(60, -50));
        QVERIFY(m_view->viewpoint().viewDirection()[1] > 0.1F);
        QVERIFY(length(subtract(position(), before)) < 1e-5);
        // Then on is where it looks.
        const VbVec3f direction = m_view->viewpoint().viewDirection();
        hold(Qt::Key_W, std::chrono::milliseconds(200));
        const VbVec3d way = subtract(position(), before);
        QVERIFY(length(subtract(normalized(way, VbVec3d()), VbVec3d(direction))) < 1e-4);
        release(m_middle);
    }

    void keysTogetherAreNoFaster()
    {
        const VbVec3d before = position();
        press(m_middle);
        QTest::keyPress(m_view.get(), Qt::Key_D);
        hold(Qt::Key_W, std::chrono::milliseconds(100));
        QTest::keyRelease(m_view.get(), Qt::Key_D);
        release(m_middle);
        QVERIFY(std::abs(length(subtract(position(), before)) - m_tool->speed() * 0.1) < 1e-5);
    }

    void shiftIsFaster()
    {
        const VbVec3d before = position();
        press(m_middle);
        hold(Qt::Key_W, std::chrono::milliseconds(100), Qt::ShiftModifier);
        release(m_middle);
        QVERIFY(std::abs(before[2] - position()[2] - m_tool->speed() * 0.1 * FlyTool::shiftFactor) < 1e-5);
    }

    void theWheelChangesTheSpeedAndNothingElse()
    {
        const QSignalSpy said(m_tool, &FlyTool::said);
        const NxViewpoint before = m_view->viewpoint();
        press(m_middle);
        turnWheel(m_middle, 120);
        const double faster = m_tool->speed();
        QVERIFY(said.back().front().toString().contains(QLocale().toString(faster, 'g', 3)));
        turnWheel(m_middle, -240);
        QVERIFY(m_tool->speed() < faster);
        QCOMPARE(m_view->viewpoint(), before);
        const double speed = m_tool->speed();
        hold(Qt::Key_W, std::chrono::milliseconds(100));
        QVERIFY(std::abs(before.position[2] - position()[2] - speed * 0.1) < 1e-5);
        release(m_middle);
        QVERIFY(said.back().front().toString().isEmpty());
        // Without the button it zooms as ever.
        const double at = position()[2];
        turnWheel(m_middle, 120);
        QVERIFY(position()[2] < at);
    }

    void theSpeedFollowsTheScene()
    {
        press(m_middle);
        moveTo(m_middle + QPoint(60, 0));
        const double speed = m_tool->speed();
        release(m_middle);
        m_scene = AppScenes::read("#mrd 1.0\nTransform { scaleFactor = 100 100 100\n"
                                  "  Mesh { positions = [-3 -1 0, 3 -1 0, 3 1 0]; indices = [0, 1, 2] }\n}\n");
        m_view->setScene(m_scene.get(), QString());
        static_cast<void>(picture());
        press(m_middle);
        moveTo(m_middle + QPoint(60, 0));
        QVERIFY(std::abs(m_tool->speed() / speed - 100) < 1);
        release(m_middle);
    }

    void aClickIsStillTheMenu()
    {
        const QSignalSpy menu(m_view.get(), &SceneView::menuRequested);
        const QSignalSpy picked(m_view.get(), &SceneView::picked);
        const QPoint place = at(2, 0);
        press(place);
        // The window system asks for the menu with the press, or with the release.
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, m_view->mapToGlobal(place));
        QApplication::sendEvent(m_view.get(), &event);
        QCOMPARE(menu.size(), 0);
        moveTo(place + QPoint(1, 1)); // an unsteady hand
        release(place + QPoint(1, 1));
        QApplication::sendEvent(m_view.get(), &event);
        QCOMPARE(menu.size(), 1);
        QCOMPARE(picked.size(), 1);
        press(place);
        moveTo(place + QPoint(80, 0));
        release(place + QPoint(80, 0));
        QCOMPARE(menu.size(), 1);
        press(place);
        hold(Qt::Key_W, std::chrono::milliseconds(100));
        release(place);
        QCOMPARE(menu.size(), 1);
    }

    void itsKeysAreShortcutsOnlyWithoutTheButton()
    {
        QShortcut shortcut(QKeySequence(Qt::Key_W), m_view.get());
        const QSignalSpy taken(&shortcut, &QShortcut::activated);
        m_view->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
        m_view->setFocus();
        QTest::keyClick(m_view.get(), Qt::Key_W);
        QCOMPARE(taken.size(), 1);
        press(m_middle);
        QTest::keyClick(m_view.get(), Qt::Key_W);
        QCOMPARE(taken.size(), 1);
        release(m_middle);
        QTest::keyClick(m_view.get(), Qt::Key_W);
        QCOMPARE(taken.size(), 2);
    }

    void escapeGoesBackToTheStart()
    {
        const NxViewpoint before = m_view->viewpoint();
        const QSignalSpy menu(m_view.get(), &SceneView::menuRequested);
        press(m_middle);
        moveTo(m_middle + QPoint(60, 20));
        QTest::keyPress(m_view.get(), Qt::Key_W);
        m_now += std::chrono::milliseconds(100);
        QTest::keyClick(m_view.get(), Qt::Key_Escape);
        QCOMPARE(m_view->viewpoint(), before);
        m_now += std::chrono::milliseconds(100);
        release(m_middle);
        QCOMPARE(m_view->viewpoint(), before);
        QCOMPARE(menu.size(), 0);
    }

    void orthographicItComesCloserByZooming()
    {
        m_view->setProjection(NxViewpoint::ORTHOGRAPHIC);
        const float height = m_view->viewpoint().height;
        press(m_middle);
        hold(Qt::Key_W, std::chrono::milliseconds(200));
        release(m_middle);
        QVERIFY(m_view->viewpoint().height < height);
    }

    void aSceneThatIsLeftEndsTheFlight()
    {
        press(m_middle);
        QTest::keyPress(m_view.get(), Qt::Key_W);
        QVERIFY(m_tool->isFlying());
        m_view->setScene(nullptr, QString());
        QVERIFY(!m_tool->isFlying());
        m_now += std::chrono::milliseconds(100);
        const NxViewpoint before = m_view->viewpoint();
        QTest::keyRelease(m_view.get(), Qt::Key_W);
        release(m_middle);
        QCOMPARE(m_view->viewpoint(), before);
    }
};

QTEST_MAIN(TestFlyTool)
#include "tst_FlyTool.moc"
