#include "TestFiles.h"
#include "app/WindowCase.h"
#include "app/view/ViewScenes.h"

#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/measure/MeasureTool.h"

#include <QAction>
#include <QSignalSpy>

#include <cmath>

using namespace Qt::StringLiterals;

/// Distances and angles between points that are clicked.
class TestMeasureTool : public WindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startTool();
        const QString squares = filePath("two squares.mrd");
        writeFile(squares, ViewScenes::squaresText);
        QCOMPARE(open(squares), QString());
        QTRY_VERIFY(view()->drawing().isStarted());
        view()->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        view()->setStyle(ViewScenes::withoutLines(view()->style()));
        view()->setFocus();
        static_cast<void>(picture());
    }
    void cleanup() { endTool(); }

    void clicksNearVerticesMeasureFromThem()
    {
        begin();
        QVERIFY(tool()->lines().front().startsWith(u"Click"_s));
        const QSignalSpy picked(view(), &SceneView::picked);
        click(-2.97, -0.97);
        QCOMPARE(tool()->lines(), QStringList(u"From -3, -1, 0"_s));
        click(2.97, 0.97);
        QCOMPARE(tool()->lines(), QStringList(u"Distance: 6.32456 (6, 2, 0)"_s));
        click(2.97, -0.97);
        QCOMPARE(tool()->lines(),
            QStringList({u"Distance: 6.32456 (6, 2, 0)"_s, u"Distance: 2 (0, -2, 0)"_s, u"Angle: 71.5651°"_s}));
        // The next click begins again.
        click(-1.03, 0.97);
        QCOMPARE(tool()->lines(), QStringList(u"From -1, 1, 0"_s));
        // Nothing was selected by the clicks.
        QCOMPARE(picked.size(), 0);
        QCOMPARE(m_session->services().getSelectedNode(), nullptr);
    }

    void clicksOnSurfacesMeasureFromWhereTheyAre()
    {
        begin();
        click(-2, 0);
        click(2, 0);
        QCOMPARE(tool()->points().size(), 2U);
        const VbVec3d& first = tool()->points()[0];
        const VbVec3d& second = tool()->points()[1];
        QVERIFY(std::abs(first[0] + 2) < 0.05 && std::abs(second[0] - 2) < 0.05 && std::abs(first[2]) < 1e-4);
        click(0, 0.5); // on nothing
        QCOMPARE(tool()->points().size(), 2U);
    }

    void theMeasureIsDrawn()
    {
        begin();
        const QImage before = picture();
        click(-1.03, -0.97);
        click(1.03, -0.97);
        const QImage after = picture();
        // The line between the squares: white in black.
        const QPoint middle = at(0, -1);
        QVERIFY(ViewScenes::isLike(after.pixelColor(middle), Qt::white)
            || ViewScenes::isLike(after.pixelColor(middle + QPoint(0, 1)), Qt::white)
            || ViewScenes::isLike(after.pixelColor(middle - QPoint(0, 1)), Qt::white));
        QVERIFY(!ViewScenes::isLike(before.pixelColor(middle), Qt::white));
    }

    void theSelectionsExtentIsShown()
    {
        QVERIFY(m_window->selectPath(u"/right/greenSquare"_s));
        begin();
        QCOMPARE(tool()->lines().mid(1), QStringList({u"Selection: 2, 2, 0"_s, u"from 1, -1, 0 to 3, 1, 0"_s}));
    }

    void draggingStillMovesTheView()
    {
        begin();
        const NxViewpoint before = view()->viewpoint();
        QTest::mousePress(view(), Qt::LeftButton, {}, at(-2, 0));
        QTest::mouseMove(view(), at(-2, 0) + QPoint(40, 0));
        QMouseEvent move(QEvent::MouseMove, QPointF(at(-2, 0) + QPoint(60, 0)),
            view()->mapToGlobal(QPointF(at(-2, 0) + QPoint(60, 0))), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view(), &move);
        QTest::mouseRelease(view(), Qt::LeftButton, {}, at(-2, 0) + QPoint(60, 0));
        QVERIFY(!(view()->viewpoint() == before));
        QVERIFY(tool()->points().empty());
    }

    void escapeEndsIt()
    {
        QVERIFY(m_window->selectPath(u"/right/greenSquare"_s));
        begin();
        click(-2, 0);
        QTest::keyClick(view(), Qt::Key_Escape);
        QVERIFY(!tool()->action()->isChecked());
        QVERIFY(tool()->points().empty());
        // The selection is still there; the next click picks again.
        QVERIFY(m_session->services().getSelectedNode() != nullptr);
        const QSignalSpy picked(view(), &SceneView::picked);
        click(-2, 0);
        QCOMPARE(picked.size(), 1);
    }

    void itEndsWithTheScene()
    {
        begin();
        click(-2, 0);
        m_window->document().newScene();
        QVERIFY(!tool()->action()->isChecked());
        QVERIFY(tool()->points().empty());
    }

private:
    void begin()
    {
        view()->setFocus();
        QTest::keyClick(view(), Qt::Key_M);
        QVERIFY(tool()->action()->isChecked());
    }
    /// Where a point of the plane of the squares is in the view.
    QPoint at(double x, double y)
    {
        const NxViewpoint& viewpoint = view()->viewpoint();
        const double scale
            = view()->height() / static_cast<double>(viewpoint.heightAt(static_cast<float>(viewpoint.position[2])));
        return {qRound(view()->width() / 2.0 + (x - viewpoint.position[0]) * scale),
            qRound(view()->height() / 2.0 - (y - viewpoint.position[1]) * scale)};
    }
    void click(double x, double y) { QTest::mouseClick(view(), Qt::LeftButton, {}, at(x, y)); }
    QImage picture() { return view()->grab().toImage(); }
    SceneView* view() { return m_window->findChild<SceneView*>(); }
    MeasureTool* tool() { return m_window->findChild<MeasureTool*>(); }
};

QTEST_MAIN(TestMeasureTool)
#include "tst_MeasureTool.moc"
