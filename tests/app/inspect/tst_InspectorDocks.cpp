#include "app/window/RobotWindowCase.h"

#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/fields/FieldTableModel.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/inspect/InspectorDock.h"
#include "orvane/app/inspect/InspectorDocks.h"
#include "orvane/app/inspect/LockAction.h"
#include "orvane/app/inspect/NodeLock.h"

#include "meridane/scene/file/NxScenePath.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

#include <random>

/// Further inspectors in the window, by real events.
class TestInspectorDocks : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    NxNode* node(const char* path) { return NxScenePath::find(m_window->document().scene(), path).node(); }
    void clickNode(const char* path)
    {
        clickRow(tree(),
            m_window->findChild<SceneTreePanel*>()->model()->indexOfPath(
                NxScenePath::find(m_window->document().scene(), path).nodes));
        QCOMPARE(m_window->findChild<SceneTreePanel*>()->selectedNode(), node(path));
    }
    QList<InspectorDock*> docks() { return m_window->findChild<InspectorDocks*>()->docks(); }
    void openAnother() { QTest::keyClick(m_window.get(), Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier); }
    static const NxFieldContainer* nodeIn(const InspectorDock* dock) { return dock->panel().model()->node(); }
    static QToolButton* padlock(const QWidget* panel)
    {
        return panel->findChild<QToolButton*>(QStringLiteral("lockButton"));
    }
    static void close(InspectorDock* dock)
    {
        const QPointer<InspectorDock> closed(dock);
        QVERIFY(dock->close());
        QTRY_VERIFY(closed.isNull());
    }
    FieldPanel& mainPanel()
    {
        auto* const dock = m_window->findChild<QDockWidget*>(QStringLiteral("fieldsDock"));
        return *dock->findChild<FieldPanel*>();
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        open(m_robot);
        tree()->expandAll();
    }
    void cleanup() { endTool(); }

    void anotherInspectorStaysOnItsNode()
    {
        clickNode("/robot/arm");
        openAnother();
        QCOMPARE(docks().size(), 1);
        QVERIFY(docks().front()->isVisible());
        QCOMPARE(docks().front()->windowTitle(), QStringLiteral("Inspector 2"));
        QVERIFY(docks().front()->lock().isOn());
        clickNode("/sun");
        QCOMPARE(nodeIn(docks().front()), node("/robot/arm"));
        QCOMPARE(mainPanel().model()->node(), sun());
        QCOMPARE(services().getSelectedNode(), sun());
        QCOMPARE(
            docks().front()->findChild<QLabel*>(QStringLiteral("fieldHeading"))->text(), QStringLiteral("arm — Mesh"));
    }

    void itsPadlockLetsItFollow()
    {
        clickNode("/robot/arm");
        openAnother();
        clickNode("/sun");
        QTest::mouseClick(padlock(docks().front()), Qt::LeftButton);
        QVERIFY(!docks().front()->lock().isOn());
        QCOMPARE(nodeIn(docks().front()), sun());
        clickNode("/robot/hand");
        QCOMPARE(nodeIn(docks().front()), node("/robot/hand"));
        QTest::mouseClick(padlock(docks().front()), Qt::LeftButton);
        clickNode("/sun");
        QCOMPARE(nodeIn(docks().front()), node("/robot/hand"));
    }

    void itFollowsWhileTheFirstOneIsLocked()
    {
        clickNode("/robot/arm");
        openAnother();
        QTest::mouseClick(padlock(docks().front()), Qt::LeftButton);
        QTest::mouseClick(padlock(&mainPanel()), Qt::LeftButton);
        clickNode("/sun");
        QCOMPARE(nodeIn(docks().front()), sun());
        QCOMPARE(mainPanel().model()->node(), node("/robot/arm"));
    }

    void theKeyIsAboutTheInspectorWithTheFocus()
    {
        clickNode("/robot/arm");
        openAnother();
        docks().front()->panel().view()->setFocus();
        QTRY_VERIFY(docks().front()->panel().view()->hasFocus());
        QTest::keyClick(docks().front()->panel().view(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!docks().front()->lock().isOn());
        QVERIFY(!m_window->findChild<QAction*>(QStringLiteral("inspector.lock"))->isChecked());
        tree()->setFocus();
        QTest::keyClick(tree(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!docks().front()->lock().isOn());
        QVERIFY(m_window->findChild<QAction*>(QStringLiteral("inspector.lock"))->isChecked());
    }

    void aRowOfTheSelectedNodeIsSelectedEverywhere()
    {
        clickNode("/sun");
        openAnother();
        FieldPanel& panel = docks().front()->panel();
        NxField* const field = sun()->getField("intensity");
        clickRow(panel.view(), panel.model()->indexOf(field));
        QCOMPARE(services().getSelectedField(), field);
        QCOMPARE(mainPanel().currentField(), field);
        services().selectField(sun()->getField("color"));
        QCOMPARE(panel.currentField(), sun()->getField("color"));
    }

    void aRowOfAnotherNodeLeavesTheSelection()
    {
        clickNode("/sun");
        openAnother();
        clickNode("/robot/arm");
        FieldPanel& panel = docks().front()->panel();
        clickRow(panel.view(), panel.model()->indexOf(sun()->getField("intensity")));
        QCOMPARE(services().getSelectedNode(), node("/robot/arm"));
        QCOMPARE(panel.currentField(), sun()->getField("intensity"));
        // Until the user asks for the editor.
        Q_EMIT panel.editorRequested();
        QCOMPARE(services().getSelectedNode(), sun());
        QCOMPARE(services().getSelectedField(), sun()->getField("intensity"));
    }

    void aDeletedNodeIsLetGo()
    {
        clickNode("/robot/arm");
        openAnother();
        clickNode("/robot");
        QTest::keyClick(tree(), Qt::Key_Delete);
        QTRY_VERIFY(!docks().front()->lock().isOn());
        QVERIFY(m_window->statusBar()->currentMessage().startsWith(QStringLiteral("The lock on arm is off")));
        QTRY_COMPARE(nodeIn(docks().front()),
            static_cast<const NxFieldContainer*>(m_window->findChild<SceneTreePanel*>()->selectedNode()));
    }

    void closingTheSceneLetsAllGo()
    {
        clickNode("/robot/arm");
        openAnother();
        openAnother();
        QCoreApplication::processEvents();
        QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(!m_window->document().isOpen());
        for (const InspectorDock* dock : docks()) {
            QCOMPARE(nodeIn(dock), nullptr);
            QVERIFY(!dock->lock().isOn());
            QVERIFY(!dock->lockAction().isEnabled());
        }
        // They are on again with the same file.
        open(m_robot);
        QTRY_COMPARE(nodeIn(docks().back()), node("/robot/arm"));
        QVERIFY(docks().back()->lock().isOn());
    }

    void closedOnesAreGoneAndTheirNumbersAreUsedAgain()
    {
        openAnother();
        openAnother();
        QCOMPARE(docks().back()->windowTitle(), QStringLiteral("Inspector 3"));
        close(docks().front());
        QCOMPARE(docks().size(), 1);
        openAnother();
        QCOMPARE(docks().back()->windowTitle(), QStringLiteral("Inspector 2"));
    }

    void thereAreSomeAtMost()
    {
        for (int i = 0; i < InspectorDocks::mostDocks + 3; ++i)
            openAnother();
        QCOMPARE(docks().size(), InspectorDocks::mostDocks);
        auto* const action = m_window->findChild<QAction*>(QStringLiteral("inspector.new"));
        QVERIFY(!action->isEnabled());
        close(docks().front());
        QVERIFY(action->isEnabled());
    }

    void theNextWindowHasThemInTheirPlaces()
    {
        clickNode("/sun");
        openAnother();
        openAnother();
        docks().back()->setFloating(true);
        close(docks().front());
        const QString name = docks().front()->objectName();
        m_window->close();
        makeWindow();
        QCOMPARE(docks().size(), 1);
        QCOMPARE(docks().front()->objectName(), name);
        QVERIFY(docks().front()->isVisible());
        QVERIFY(docks().front()->isFloating());
        QVERIFY(!docks().front()->lock().isOn());
        open(m_robot);
        clickNode("/sun");
        QCOMPARE(nodeIn(docks().front()), sun());
    }

    void locksAndColumnsAreKept()
    {
        clickNode("/robot/arm");
        openAnother();
        QTest::keyClick(m_window.get(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        docks().front()->panel().view()->header()->resizeSection(FieldTableModel::NameColumn, 91);
        mainPanel().view()->header()->resizeSection(FieldTableModel::NameColumn, 133);
        QCoreApplication::processEvents();
        m_window->close();
        makeWindow();
        QVERIFY(!docks().front()->lock().isOn());
        open(m_robot);
        QTRY_COMPARE(nodeIn(docks().front()), node("/robot/arm"));
        QVERIFY(docks().front()->lock().isOn());
        QCOMPARE(mainPanel().model()->node(), node("/robot/arm"));
        QCOMPARE(docks().front()->panel().view()->columnWidth(FieldTableModel::NameColumn), 91);
        QCOMPARE(mainPanel().view()->columnWidth(FieldTableModel::NameColumn), 133);
        // What is unlocked stays so.
        QTest::mouseClick(padlock(docks().front()), Qt::LeftButton);
        QCoreApplication::processEvents();
        m_window->close();
        makeWindow();
        open(m_robot);
        QTRY_COMPARE(mainPanel().model()->node(), node("/robot/arm"));
        QVERIFY(!docks().front()->lock().isOn());
    }

    void aLockOnANodeThatIsGoneIsOff()
    {
        clickNode("/robot/arm");
        openAnother();
        QCoreApplication::processEvents();
        m_window->close();
        QByteArray text = readFile(m_robot);
        text.replace("\"arm\"", "\"leg\"");
        writeFile(m_robot, text);
        makeWindow();
        open(m_robot);
        QTRY_VERIFY(m_window->statusBar()->currentMessage().startsWith(
            QStringLiteral("Inspector 2 was locked on /robot/arm, which isn't in the file any more.")));
        QVERIFY(!docks().front()->lock().isOn());
        clickNode("/sun");
        QCOMPARE(nodeIn(docks().front()), sun());
    }

    void aClosedInspectorForgetsItsLock()
    {
        clickNode("/robot/arm");
        openAnother();
        close(docks().front());
        clickNode("/sun");
        openAnother();
        QCOMPARE(nodeIn(docks().front()), sun());
        QCoreApplication::processEvents();
        m_window->close();
        makeWindow();
        open(m_robot);
        QTRY_COMPARE(nodeIn(docks().front()), sun());
    }

    void settingsThatMakeNoSenseAddNothing()
    {
        m_window->close();
        m_window.reset();
        m_session->settings().setValue(QStringLiteral("window/inspectors"),
            QStringList{QStringLiteral("x"), QStringLiteral("-4"), QStringLiteral("1"), QStringLiteral("99999"),
                QStringLiteral("3"), QStringLiteral("3")});
        m_session->settings().sync();
        makeWindow();
        QCOMPARE(docks().size(), 1);
        QCOMPARE(docks().front()->number(), 3);
    }

    /// Opens, locks and closes inspectors, browses, deletes and undoes at random. MONKEY_SEED sets the seed,
    /// MONKEY_STEPS the number of steps.
    void anyOrderKeepsThemOnNodesOfTheScene()
    {
        bool isSet = false;
        const int wanted = qEnvironmentVariableIntValue("MONKEY_STEPS", &isSet);
        const int steps = isSet ? wanted : 200;
        std::mt19937 random(static_cast<unsigned>(qEnvironmentVariableIntValue("MONKEY_SEED")));
        const auto below = [&random](qsizetype limit) { return static_cast<qsizetype>(random()) % limit; };
        int followed = 0;
        int locked = 0;
        for (int step = 0; step < steps; ++step) {
            const qsizetype what = below(100);
            InspectorDock* const dock = docks().isEmpty() ? nullptr : docks().at(below(docks().size()));
            if (what < 30) {
                const QModelIndex row = tree()->indexAt({20, static_cast<int>(below(150))});
                if (row.isValid())
                    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, tree()->visualRect(row).center());
            } else if (what < 40) {
                openAnother();
            } else if (what < 47 && dock != nullptr) {
                close(dock);
            } else if (what < 62 && dock != nullptr) {
                QTest::mouseClick(padlock(dock), Qt::LeftButton);
            } else if (what < 70) {
                QTest::mouseClick(padlock(&mainPanel()), Qt::LeftButton);
            } else if (what < 80) {
                QTest::keyClick(tree(), Qt::Key_Delete);
            } else if (what < 92) {
                services().undo();
            } else if (what < 98) {
                services().redo();
            } else {
                services().setClean(); // or the file isn't opened again without a question
                open(m_robot);
                tree()->expandAll();
            }
            AppScenes::runSensors();
            QCoreApplication::processEvents();
            AppScenes::runSensors();
            for (const InspectorDock* const each : docks()) {
                const bool isOn = each->lock().isOn();
                ++(isOn ? locked : followed);
                const NxNode* const shown
                    = isOn ? each->lock().node() : m_window->findChild<SceneTreePanel*>()->selectedNode();
                QCOMPARE(nodeIn(each), static_cast<const NxFieldContainer*>(shown));
                QVERIFY(!isOn || !each->lock().path().empty());
                QCOMPARE(each->lockAction().isChecked(), isOn);
            }
        }
        QVERIFY(followed > 0 && locked > 0);
    }

    void theMenuOpensOne()
    {
        auto* const menu = m_window->findChild<QMenu*>(QStringLiteral("inspectorsMenu"));
        auto* const action = m_window->findChild<QAction*>(QStringLiteral("inspector.new"));
        QVERIFY(menu->actions().contains(action));
        menu->popup(m_window->mapToGlobal(QPoint(20, 20)));
        QTRY_VERIFY(menu->isVisible());
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
        QCOMPARE(docks().size(), 1);
    }
};

QTEST_MAIN(TestInspectorDocks)
#include "tst_InspectorDocks.moc"
