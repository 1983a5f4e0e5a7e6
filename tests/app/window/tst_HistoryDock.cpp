#include "app/window/RobotWindowCase.h"

#include "orvane/app/history/HistoryModel.h"
#include "orvane/app/history/HistoryPanel.h"
#include "orvane/app/window/HistoryDock.h"
#include "orvane/extender/OrvStepList.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>

/// The dock of the history in the window.
class TestHistoryDock : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] HistoryDock* dock() { return m_window->findChild<HistoryDock*>(); }
    [[nodiscard]] HistoryPanel* panel() { return m_window->findChild<HistoryPanel*>(); }
    void pressKey() { QTest::keyClick(m_window.get(), Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier); }
    [[nodiscard]] QString step(int row)
    {
        return panel()->model()->index(row, HistoryModel::StepColumn).data().toString();
    }

private Q_SLOTS:
    void init() { startBesideRobot(); }
    void cleanup() { endTool(); }

    void aKeyShowsAndHidesIt()
    {
        QVERIFY(dock()->isHidden());
        QVERIFY(panel() == nullptr);
        pressKey();
        QVERIFY(dock()->isVisible());
        QCOMPARE(m_window->dockWidgetArea(dock()), Qt::BottomDockWidgetArea);
        QCOMPARE(step(0), QStringLiteral("No scene is open"));
        pressKey();
        QVERIFY(!dock()->isVisible());
    }

    void theViewMenuListsIt()
    {
        Q_EMIT m_window->findChild<QMenu*>(QStringLiteral("viewMenu"))->aboutToShow();
        const auto* const menu = m_window->findChild<QMenu*>(QStringLiteral("docksMenu"));
        QVERIFY(menu->actions().contains(dock()->toggleViewAction()));
        dock()->toggleViewAction()->trigger();
        QVERIFY(dock()->isVisible());
    }

    void itComesBackInTheNextRun()
    {
        open(m_robot);
        pressKey();
        m_window->addDockWidget(Qt::RightDockWidgetArea, dock());
        m_window->close();
        makeWindow();
        QVERIFY(dock()->isVisible());
        QCOMPARE(m_window->dockWidgetArea(dock()), Qt::RightDockWidgetArea);
        QVERIFY(panel() != nullptr);
    }

    void itShowsTheStepsOfTheOpenScene()
    {
        pressKey();
        open(m_robot);
        QCOMPARE(step(0), QStringLiteral("Opened robot.mrd"));
        clickRow(tree(), tree()->model()->index(0, 0));
        QTest::keyClick(tree(), Qt::Key_F2);
        auto* const line = tree()->findChild<QLineEdit*>();
        QVERIFY(line != nullptr);
        QTest::keyClicks(line, QStringLiteral("machine"));
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(panel()->model()->rowCount(), 2);
        QCOMPARE(step(1), QStringLiteral("Rename machine"));
        clickRow(panel()->view(), panel()->model()->index(0, 1));
        QTRY_COMPARE(robot()->getName(), VbString("robot"));
        QVERIFY(!m_window->isWindowModified());
        m_window->document().newScene();
        QCOMPARE(panel()->model()->rowCount(), 1);
        QCOMPARE(step(0), QStringLiteral("New scene"));
        m_window->document().close();
        QCOMPARE(step(0), QStringLiteral("No scene is open"));
    }
};

QTEST_MAIN(TestHistoryDock)
#include "tst_HistoryDock.moc"
