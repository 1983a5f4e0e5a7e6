#include "app/window/RobotWindowCase.h"

#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/inspect/Inspectors.h"
#include "orvane/app/tree/SelectionLabel.h"

#include "meridane/scene/file/NxScenePath.h"

#include <QAction>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include <random>

/// The padlock, Back and Forward in the window, by real events.
class TestSelectionLock : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    NxNode* node(const char* path) { return NxScenePath::find(m_window->document().scene(), path).node(); }
    QModelIndex index(const char* path)
    {
        return m_window->findChild<SceneTreePanel*>()->model()->indexOfPath(
            NxScenePath::find(m_window->document().scene(), path).nodes);
    }
    void clickNode(const char* path)
    {
        clickRow(tree(), index(path));
        QCOMPARE(treeNode(), node(path));
    }
    NxNode* treeNode() { return m_window->findChild<SceneTreePanel*>()->selectedNode(); }
    const NxFieldContainer* tableNode() { return m_window->findChild<FieldPanel*>()->model()->node(); }
    QToolButton* lockStatus() { return m_window->findChild<QToolButton*>(QStringLiteral("lockStatus")); }
    QAction* action(const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); }
    bool isLocked() { return action("inspector.lock")->isChecked(); }
    void pressLock() { QTest::keyClick(m_window.get(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier); }
    void goBack() { QTest::keyClick(m_window.get(), Qt::Key_Left, Qt::AltModifier); }
    void goForward() { QTest::keyClick(m_window.get(), Qt::Key_Right, Qt::AltModifier); }
    QToolButton* buttonOf(const char* name)
    {
        QToolButton* found = nullptr;
        for (auto* button :
            m_window->findChild<QToolBar*>(QStringLiteral("selectionToolBar"))->findChildren<QToolButton*>()) {
            if (button->defaultAction() == action(name))
                found = button;
        }
        return found;
    }

    /// What must hold at any moment.
    void check()
    {
        QCOMPARE(lockStatus()->isVisible(), isLocked());
        QCOMPARE(tableNode(), services().getSelectedNode());
        if (!isLocked())
            QCOMPARE(static_cast<NxFieldContainer*>(treeNode()), services().getSelectedNode());
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        open(m_robot);
        tree()->expandAll();
    }
    void cleanup() { endTool(); }

    void browsingLeavesFieldsAndSelectionOnTheLockedNode()
    {
        clickNode("/robot/arm");
        services().selectField(node("/robot/arm")->getFields().front());
        pressLock();
        QVERIFY(isLocked());
        clickNode("/sun");
        clickNode("/robot/hand");
        QCOMPARE(services().getSelectedNode(), node("/robot/arm"));
        QCOMPARE(services().getSelectedField(), node("/robot/arm")->getFields().front());
        QCOMPARE(tableNode(), node("/robot/arm"));
        check();
    }

    void unlockingFollowsTheSelectionAgain()
    {
        clickNode("/robot/arm");
        pressLock();
        clickNode("/sun");
        pressLock();
        QVERIFY(!isLocked());
        QCOMPARE(services().getSelectedNode(), sun());
        check();
    }

    void theStatusBarSaysWhatIsLockedAndUnlocks()
    {
        QVERIFY(!lockStatus()->isVisible());
        clickNode("/robot/arm");
        pressLock();
        QCOMPARE(lockStatus()->text(), QStringLiteral("Locked on arm"));
        QVERIFY(lockStatus()->toolTip().contains(QStringLiteral("/robot/arm")));
        QVERIFY(lockStatus()->toolTip().contains(QStringLiteral("Ctrl+Shift+L")));
        // The path in the status bar is that of the tree, without the locked node's field.
        services().selectField(node("/robot/arm")->getField("positions"));
        QTRY_COMPARE(m_window->findChild<SelectionLabel*>()->path(), QStringLiteral("/robot/arm.positions"));
        clickNode("/robot/hand");
        QTRY_COMPARE(m_window->findChild<SelectionLabel*>()->path(), QStringLiteral("/robot/hand"));
        QTest::mouseClick(lockStatus(), Qt::LeftButton);
        QVERIFY(!isLocked());
        check();
    }

    void thePadlockOfTheToolBarLocks()
    {
        QVERIFY(!buttonOf("inspector.lock")->isEnabled()); // there is nothing to lock
        clickNode("/sun");
        QTest::mouseClick(buttonOf("inspector.lock"), Qt::LeftButton);
        QVERIFY(isLocked());
        QVERIFY(buttonOf("inspector.lock")->toolTip().contains(QStringLiteral("/sun")));
        QTest::mouseClick(buttonOf("inspector.lock"), Qt::LeftButton);
        QVERIFY(!isLocked());
    }

    void aFieldOfTheLockedNodeCanBeChosen()
    {
        clickNode("/sun");
        pressLock();
        clickNode("/robot/arm");
        services().selectField(sun()->getFields().back());
        QCOMPARE(services().getSelectedNode(), sun());
        QVERIFY(isLocked());
        QCOMPARE(treeNode(), node("/robot/arm"));
    }

    void aSelectionByAPluginTurnsItOff()
    {
        clickNode("/sun");
        pressLock();
        clickNode("/robot/arm");
        services().selectNode(node("/robot/hand"));
        QVERIFY(!isLocked());
        QCOMPARE(treeNode(), node("/robot/hand"));
        QCOMPARE(m_window->statusBar()->currentMessage(),
            QStringLiteral("The lock on sun is off, since another node was selected."));
        check();
    }

    void announcingTheSelectionAgainMovesNothing()
    {
        clickNode("/sun");
        pressLock();
        clickNode("/robot/arm");
        services().announceSelection(); // as another profile does
        QVERIFY(isLocked());
        QCOMPARE(treeNode(), node("/robot/arm"));
        QCOMPARE(tableNode(), sun());
    }

    void deletingTheLockedNodeTurnsItOff()
    {
        clickNode("/robot/arm");
        pressLock();
        QTest::keyClick(tree(), Qt::Key_Delete);
        QTRY_VERIFY(!isLocked());
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("The lock on arm is off")));
        QTRY_VERIFY(treeNode() == nullptr || services().getSelectedNode() == treeNode());
        services().undo();
        QTRY_COMPARE(treeNode(), node("/robot/arm"));
        QVERIFY(!isLocked());
    }

    void deletingAGroupAroundItTurnsItOff()
    {
        clickNode("/robot/arm");
        pressLock();
        clickNode("/robot");
        QTest::keyClick(tree(), Qt::Key_Delete);
        QTRY_VERIFY(!isLocked());
        QTRY_COMPARE(m_window->document().scene()->getNumChildren(), 1);
        QTRY_COMPARE(static_cast<NxFieldContainer*>(treeNode()), services().getSelectedNode());
    }

    void undoThatTakesTheNodeAwayTurnsItOff()
    {
        clickNode("/robot/arm");
        QTest::keyClick(tree(), Qt::Key_Delete);
        QTRY_COMPARE(robot()->getNumChildren(), 2);
        services().undo();
        QTRY_COMPARE(treeNode(), node("/robot/arm"));
        pressLock();
        QVERIFY(isLocked());
        services().redo();
        QTRY_VERIFY(!isLocked());
    }

    void aNodeThatMovesStaysLocked()
    {
        clickNode("/robot/arm");
        pressLock();
        const NxRef<NxNode> arm(node("/robot/arm"));
        m_window->document().scene()->addChild(arm.get());
        robot()->removeChild(0);
        AppScenes::runSensors();
        QCoreApplication::processEvents();
        QVERIFY(isLocked());
        QTRY_VERIFY(lockStatus()->isVisible());
        m_window->document().scene()->removeChild(2);
        QTRY_VERIFY(!isLocked());
    }

    void anotherSceneTurnsItOff()
    {
        clickNode("/robot/arm");
        pressLock();
        open(m_robot);
        QVERIFY(!isLocked());
        // The file opens with what was selected in it.
        QCOMPARE(services().getSelectedNode(), node("/robot/arm"));
        QVERIFY(!action("selection.back")->isEnabled());
        check();
    }

    void aReloadGoesOnWithTheNodeInTheSamePlace()
    {
        clickNode("/robot/hand");
        pressLock();
        clickNode("/sun");
        const NxRef<NxNode> before(node("/robot/hand"));
        // The group is another one, so all that is in it is, too.
        writeFile(m_robot, QByteArray(AppScenes::robotText).replace("Group \"robot\"", "Transform \"robot\""));
        QTest::keyClick(m_window.get(), Qt::Key_F5);
        QTRY_VERIFY(node("/robot") != nullptr && QByteArray(node("/robot")->getClassName()) == "Transform");
        QVERIFY(isLocked());
        QTRY_COMPARE(tableNode(), node("/robot/hand"));
        QCOMPARE(services().getSelectedNode(), node("/robot/hand"));
        QTRY_COMPARE(treeNode(), sun());
        check();
    }

    void aReloadWithoutTheNodeTurnsItOff()
    {
        clickNode("/robot/hand");
        pressLock();
        writeFile(m_robot, QByteArray(AppScenes::robotText).replace("Mesh \"hand\"", "Material \"hand\""));
        QTest::keyClick(m_window.get(), Qt::Key_F5);
        QTRY_VERIFY(QByteArray(node("/robot/hand")->getClassName()) == "Material");
        QTRY_VERIFY(!isLocked());
    }

    void keysGoBackAndForward()
    {
        QVERIFY(!action("selection.back")->isEnabled());
        clickNode("/robot/arm");
        services().selectField(node("/robot/arm")->getFields().back());
        clickNode("/robot");
        clickNode("/sun");
        goBack();
        QCOMPARE(services().getSelectedNode(), robot());
        goBack();
        QCOMPARE(services().getSelectedNode(), node("/robot/arm"));
        QCOMPARE(services().getSelectedField(), node("/robot/arm")->getFields().back());
        QVERIFY(!action("selection.back")->isEnabled());
        goForward();
        goForward();
        QCOMPARE(services().getSelectedNode(), sun());
        QVERIFY(!action("selection.forward")->isEnabled());
    }

    void theButtonsOfTheMouseGoBackAndForward()
    {
        clickNode("/robot/arm");
        clickNode("/sun");
        QTest::mouseClick(tree()->viewport(), Qt::BackButton);
        QCOMPARE(services().getSelectedNode(), node("/robot/arm"));
        QTest::mouseClick(table()->viewport(), Qt::ForwardButton);
        QCOMPARE(services().getSelectedNode(), sun());
        QTest::mouseDClick(m_window.get(), Qt::BackButton);
        QCOMPARE(services().getSelectedNode(), node("/robot/arm"));
    }

    void theListOfPlacesGoesToAnyOfThem()
    {
        clickNode("/robot/arm");
        clickNode("/robot/hand");
        clickNode("/sun");
        QMenu* const places = buttonOf("selection.back")->menu();
        places->popup(m_window->mapToGlobal(QPoint(50, 50)));
        QTRY_VERIFY(places->isVisible());
        QCOMPARE(places->actions().size(), 2);
        QCOMPARE(places->actions().at(1)->text(), QStringLiteral("arm — Mesh"));
        QTest::mouseClick(
            places, Qt::LeftButton, Qt::NoModifier, places->actionGeometry(places->actions().at(1)).center());
        QCOMPARE(services().getSelectedNode(), node("/robot/arm"));
        QVERIFY(action("selection.forward")->isEnabled());
    }

    void backBrowsesWhileTheLockIsOn()
    {
        clickNode("/robot/arm");
        clickNode("/robot/hand");
        pressLock();
        clickNode("/sun");
        goBack();
        goBack();
        QCOMPARE(treeNode(), node("/robot/arm"));
        QCOMPARE(services().getSelectedNode(), node("/robot/hand"));
        QVERIFY(isLocked());
    }

    void deletedNodesAreSkipped()
    {
        clickNode("/robot/arm");
        clickNode("/robot/hand");
        clickNode("/sun");
        robot()->removeChild(1); // hand
        AppScenes::runSensors();
        goBack();
        QCOMPARE(treeNode(), node("/robot/arm"));
    }

    void theMenuHasItAll()
    {
        auto* const menu = m_window->findChild<QMenu*>(QStringLiteral("inspectorsMenu"));
        for (const char* const name : {"selection.back", "selection.forward", "inspector.lock"})
            QVERIFY2(menu->actions().contains(action(name)), name);
    }

    /// Locks, browses, deletes, undoes, goes back and forward at random. MONKEY_SEED sets the seed, MONKEY_STEPS the
    /// number of steps.
    void anyOrderKeepsTableAndTreeTogether()
    {
        bool isSet = false;
        const int wanted = qEnvironmentVariableIntValue("MONKEY_STEPS", &isSet);
        const int steps = isSet ? wanted : 400;
        std::mt19937 random(static_cast<unsigned>(qEnvironmentVariableIntValue("MONKEY_SEED")));
        const auto below = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
        QHash<int, int> locks;
        for (int step = 0; step < steps; ++step) {
            const int what = below(100);
            const bool wasLocked = isLocked();
            const NxRef<NxFieldContainer> before(services().getSelectedNode());
            if (what < 35) {
                const QModelIndex row = tree()->indexAt({20, below(200)});
                if (row.isValid())
                    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, tree()->visualRect(row).center());
            } else if (what < 50) {
                pressLock();
            } else if (what < 60) {
                goBack();
            } else if (what < 68) {
                goForward();
            } else if (what < 78) {
                QTest::keyClick(tree(), Qt::Key_Delete);
            } else if (what < 90) {
                services().undo();
            } else if (what < 95) {
                services().redo();
            } else if (what < 98) {
                const QModelIndex row = table()->indexAt({20, below(200)});
                if (row.isValid())
                    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, table()->visualRect(row).center());
            } else {
                services().selectNode(treeNode());
            }
            const bool browsed = what < 35 || (what >= 50 && what < 68);
            if (wasLocked && browsed)
                QCOMPARE(services().getSelectedNode(), before.get());
            AppScenes::runSensors();
            QCoreApplication::processEvents();
            AppScenes::runSensors();
            ++locks[isLocked() ? 1 : 0];
            check();
            if (QTest::currentTestFailed()) {
                qWarning("after step %d", step);
                return;
            }
        }
        QVERIFY(locks[0] > 0 && locks[1] > 0);
    }
};

QTEST_MAIN(TestSelectionLock)
#include "tst_SelectionLock.moc"
