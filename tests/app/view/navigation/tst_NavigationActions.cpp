#include "TestFiles.h"
#include "app/WindowCase.h"
#include "app/view/ViewScenes.h"

#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/navigation/FlyTool.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <QAction>
#include <QMouseEvent>
#include <QStatusBar>

using namespace meridane;

/// The preferences of the navigation, and flying in the window.
class TestNavigationActions : public WindowCase {
    Q_OBJECT

private:
    [[nodiscard]] SceneView* view() { return m_window->findChild<SceneView*>(); }
    [[nodiscard]] QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }
    void show()
    {
        QCOMPARE(open(filePath("squares.mrd")), QString());
        QTRY_VERIFY(view()->drawing().isStarted());
        view()->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        static_cast<void>(view()->grab());
    }
    /// Drags on the green square.
    void drag()
    {
        const QPoint from(view()->width() * 4 / 5, view()->height() / 2);
        QTest::mousePress(view(), Qt::LeftButton, Qt::NoModifier, from);
        for (const int step : {10, 30, 60}) {
            const QPointF place = from - QPointF(step, 0);
            QMouseEvent move(
                QEvent::MouseMove, place, view()->mapToGlobal(place), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(view(), &move);
        }
        QTest::mouseRelease(view(), Qt::LeftButton, Qt::NoModifier, from - QPoint(60, 0));
    }

private Q_SLOTS:
    void init()
    {
        startTool();
        writeFile(filePath("squares.mrd"), ViewScenes::squaresText);
        show();
    }
    void cleanup() { endTool(); }

    void orbitsAboutTheMiddleIfThatIsPreferred()
    {
        QVERIFY(action("view.orbitPicked")->isChecked());
        const VbVec3d before = view()->viewpoint().focalPoint();
        drag();
        QVERIFY(length(subtract(view()->viewpoint().focalPoint(), before)) > 0.1);
        action("view.orbitPicked")->trigger();
        makeWindow();
        show();
        QVERIFY(!action("view.orbitPicked")->isChecked());
        const VbVec3d middle = view()->viewpoint().focalPoint();
        drag();
        QVERIFY(length(subtract(view()->viewpoint().focalPoint(), middle)) < 1e-3);
    }

    void remembersWhetherToAnimate()
    {
        QVERIFY(action("view.animate")->isChecked());
        action("view.animate")->trigger();
        makeWindow();
        QVERIFY(!action("view.animate")->isChecked());
    }

    void theStatusBarHasTheSpeedOfTheFlight()
    {
        // A key of the handles is one of the flight while the button is held.
        const QPoint middle = view()->rect().center();
        QTest::mousePress(view(), Qt::RightButton, Qt::NoModifier, middle);
        const double before = view()->viewpoint().position[1];
        QTest::keyPress(view(), Qt::Key_E);
        QTRY_VERIFY(view()->viewpoint().position[1] > before);
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("units per second")));
        QTest::keyRelease(view(), Qt::Key_E);
        QTest::mouseRelease(view(), Qt::RightButton, Qt::NoModifier, middle);
        QVERIFY(m_window->statusBar()->currentMessage().isEmpty());
        QVERIFY(action("view.handlesNone")->isChecked());
    }
};

QTEST_MAIN(TestNavigationActions)
#include "tst_NavigationActions.moc"
