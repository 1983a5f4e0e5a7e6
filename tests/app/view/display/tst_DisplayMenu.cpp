#include "TestFiles.h"
#include "app/WindowCase.h"
#include "app/view/ViewScenes.h"

#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/display/SectionBar.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QMenu>
#include <QSignalSpy>
#include <QSlider>
#include <QToolButton>

using namespace Qt::StringLiterals;

/// What the view shows, chosen in the window.
class TestDisplayMenu : public WindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startTool();
        openSquares();
    }
    void cleanup() { endTool(); }

    void theMenuIsInTheViewMenu()
    {
        Q_EMIT m_window->findChild<QMenu*>(u"viewMenu"_s)->aboutToShow();
        const auto actions = m_window->findChild<QMenu*>(u"viewMenu"_s)->actions();
        QVERIFY(actions.contains(m_window->findChild<QMenu*>(u"displayMenu"_s)->menuAction()));
        for (const QAction* const action : m_window->findChild<QMenu*>(u"displayMenu"_s)->actions())
            QVERIFY(action->isSeparator() || (!action->statusTip().isEmpty() && !action->shortcut().isEmpty()));
    }

    void keysChangeTheShading_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("shading");
        QTest::newRow("unlit") << Qt::Key_2 << int{NxDrawingStyle::UNLIT};
        QTest::newRow("normals") << Qt::Key_3 << int{NxDrawingStyle::NORMALS};
        QTest::newRow("checker") << Qt::Key_4 << int{NxDrawingStyle::CHECKER};
        QTest::newRow("vertex colors") << Qt::Key_5 << int{NxDrawingStyle::VERTEX_COLORS};
    }
    void keysChangeTheShading()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const int, shading);
        QVERIFY(ViewScenes::count(picture(), Qt::red) > 500);
        press(key);
        QCOMPARE(int{view()->style().shading}, shading);
        QCOMPARE(ViewScenes::count(picture(), Qt::red) > 500, shading == NxDrawingStyle::UNLIT);
        press(Qt::Key_1);
        QVERIFY(ViewScenes::count(picture(), Qt::red) > 500);
    }

    void theChoicesAreKept()
    {
        press(Qt::Key_3);
        press(Qt::Key_6);
        press(Qt::Key_7);
        press(Qt::Key_9);
        makeWindow();
        QCOMPARE(view()->style().shading, NxDrawingStyle::NORMALS);
        QVERIFY(view()->style().wires && view()->style().headLight);
        for (const char* const name : {"view.normals", "view.wires", "view.headLight", "view.statistics"})
            QVERIFY2(action(name)->isChecked(), name);
        QVERIFY(!action("view.section")->isChecked());
        QVERIFY(!view()->style().section.isOn);
    }

    void theBackgroundIsLightDarkOrAsTheWindow()
    {
        const auto brightness = [this] { return picture().pixelColor(3, 3).lightness(); };
        const int asWindow = brightness();
        press(Qt::Key_0);
        const int light = brightness();
        QVERIFY(light > 200);
        makeWindow();
        openSquares();
        QCOMPARE(brightness(), light);
        press(Qt::Key_0);
        QVERIFY(brightness() < 30);
        press(Qt::Key_0);
        QCOMPARE(brightness(), asWindow);
    }

    void theStatisticsAreSeen()
    {
        const QImage before = picture();
        press(Qt::Key_9);
        static_cast<void>(picture());
        const QImage with = picture();
        QVERIFY(with != before);
        // The plate over the corner, with white text on it.
        const QRect corner(0, 0, 250, 150);
        QVERIFY(
            ViewScenes::count(with.copy(corner), Qt::white) > ViewScenes::count(before.copy(corner), Qt::white) + 50);
        press(Qt::Key_9);
        QCOMPARE(picture(), before);
    }

    void theSectionCutsThePictureAndWhatIsPicked()
    {
        press(Qt::Key_8);
        QVERIFY(bar()->isVisible());
        QCOMPARE(position()->value(), 0.0); // the middle
        QVERIFY(ViewScenes::count(picture(), Qt::red) > 500);
        QCOMPARE(ViewScenes::count(picture(), Qt::green), 0);
        const QSignalSpy picked(view(), &SceneView::picked);
        QTest::mouseClick(view(), Qt::LeftButton, {}, at(2));
        QCOMPARE(picked.size(), 0);
        QTest::mouseClick(view(), Qt::LeftButton, {}, at(-2));
        QCOMPARE(picked.size(), 1);
        QTest::mouseClick(bar()->findChild<QToolButton*>(u"sectionFlip"_s), Qt::LeftButton);
        QCOMPARE(ViewScenes::count(picture(), Qt::red), 0);
        QVERIFY(ViewScenes::count(picture(), Qt::green) > 500);
        QTest::mouseClick(bar()->findChild<QToolButton*>(u"sectionClose"_s), Qt::LeftButton);
        QVERIFY(!bar()->isVisible() && !action("view.section")->isChecked());
        QVERIFY(ViewScenes::count(picture(), Qt::red) > 500 && ViewScenes::count(picture(), Qt::green) > 500);
    }

    void theSectionMovesWithSliderAndNumber()
    {
        press(Qt::Key_8);
        auto* const slider = bar()->findChild<QSlider*>();
        slider->setFocus();
        QTest::keyClick(slider, Qt::Key_End);
        QCOMPARE(position()->value(), 3.0);
        QVERIFY(ViewScenes::count(picture(), Qt::green) > 500);
        QTest::keyClick(slider, Qt::Key_Home);
        QCOMPARE(position()->value(), -3.0);
        position()->setFocus();
        position()->selectAll();
        QTest::keyClicks(position(), u"2"_s);
        QTest::keyClick(position(), Qt::Key_Return);
        const int half = ViewScenes::count(picture(), Qt::green);
        QVERIFY(half > 250);
        QTest::keyClick(slider, Qt::Key_End);
        const int whole = ViewScenes::count(picture(), Qt::green);
        QVERIFY2(std::abs(whole - 2 * half) < whole / 10, qPrintable(QString::number(half)));
        auto* const axis = bar()->findChild<QComboBox*>(u"sectionAxis"_s);
        axis->setFocus();
        QTest::keyClick(axis, Qt::Key_Down);
        QCOMPARE(axis->currentText(), u"y"_s);
        QCOMPARE(position()->value(), 0.0);
        const int lower = ViewScenes::count(picture(), Qt::green);
        QVERIFY2(std::abs(whole - 2 * lower) < whole / 10, qPrintable(QString::number(lower)));
        QTest::keyClick(axis, Qt::Key_Escape);
        QVERIFY(!bar()->isVisible());
    }

    void theSectionEndsWithTheScene()
    {
        press(Qt::Key_8);
        m_window->document().newScene();
        QVERIFY(!bar()->isVisible());
        QVERIFY(!view()->style().section.isOn);
    }

private:
    void openSquares()
    {
        const QString squares = filePath("two squares.mrd");
        writeFile(squares, ViewScenes::squaresText);
        QCOMPARE(open(squares), QString());
        QTRY_VERIFY(view()->drawing().isStarted());
        view()->lookAlong(VbVec3f(0, 0, -1), VbVec3f(0, 1, 0));
        view()->setStyle(ViewScenes::withoutLines(view()->style()));
        view()->setFocus();
        static_cast<void>(picture());
    }
    void press(Qt::Key key)
    {
        view()->setFocus();
        QTest::keyClick(view(), key, Qt::AltModifier);
    }
    /// Where a point of the x axis is in the view.
    QPoint at(double x)
    {
        const NxViewpoint& viewpoint = view()->viewpoint();
        const double units = static_cast<double>(viewpoint.heightAt(static_cast<float>(viewpoint.position[2])));
        return {qRound(view()->width() / 2.0 + (x - viewpoint.position[0]) * view()->height() / units),
            view()->height() / 2};
    }
    QImage picture() { return view()->grab().toImage(); }
    QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }
    SceneView* view() { return m_window->findChild<SceneView*>(); }
    SectionBar* bar() { return m_window->findChild<SectionBar*>(); }
    QDoubleSpinBox* position() { return bar()->findChild<QDoubleSpinBox*>(); }
};

QTEST_MAIN(TestDisplayMenu)
#include "tst_DisplayMenu.moc"
