#include "app/window/RobotWindowCase.h"

#include "orvane/app/history/StepTravel.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/extender/OrvStepList.h"

#include <QAction>

/// Nodes that undo and redo bring back.
class TestReturnedNodes : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] QModelIndex robotRow() { return tree()->model()->index(0, 0); }
    [[nodiscard]] NxFieldContainer* selected() { return m_session->services().getSelectedNode(); }

    [[nodiscard]] QModelIndex row(int place, const QModelIndex& parent)
    {
        return tree()->model()->index(place, 0, parent);
    }
    void unfold(const QModelIndex& index)
    {
        clickRow(tree(), index);
        QTest::keyClick(tree(), Qt::Key_Right);
        QVERIFY(tree()->isExpanded(index) && row(0, index).isValid());
    }

    void remove(const QModelIndex& index)
    {
        clickRow(tree(), index);
        QTest::keyClick(tree(), Qt::Key_Delete);
        AppScenes::runSensors();
        QCoreApplication::processEvents();
    }
    void pressToMove(Qt::Key key)
    {
        QTest::keyClick(tree(), key, Qt::AltModifier | Qt::ShiftModifier);
        AppScenes::runSensors();
        QCoreApplication::processEvents();
    }
    void addToSelection(const QModelIndex& index)
    {
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::ControlModifier, tree()->visualRect(index).center());
    }
    [[nodiscard]] SceneTreePanel* panel() { return m_window->findChild<SceneTreePanel*>(); }
    void pressUndo()
    {
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        AppScenes::runSensors();
        QCoreApplication::processEvents();
    }
    void pressRedo()
    {
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        AppScenes::runSensors();
        QCoreApplication::processEvents();
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        writeFile(m_robot,
            "#mrd 1.0\nGroup \"robot\" {\n  Group \"arm\" {\n    Group \"hand\" {\n      Mesh \"thumb\" {}\n    }\n"
            "    Group \"folded\" {\n      Mesh {}\n    }\n  }\n}\nPointLight \"sun\" {}\n");
        open(m_robot);
    }
    void cleanup() { endTool(); }

    void anUndoneDeletionSelectsTheNode()
    {
        NxNode* const sunNode = sun();
        remove(tree()->model()->index(1, 0));
        clickRow(tree(), robotRow());
        pressUndo();
        QCOMPARE(selected(), static_cast<NxFieldContainer*>(sunNode));
        QVERIFY(tree()->selectionModel()->isSelected(tree()->model()->index(1, 0)));
    }

    void theTreeUnfoldsToTheNodeAndBelowIt()
    {
        unfold(row(0, robotRow())); // the arm
        unfold(row(0, row(0, robotRow()))); // the hand
        NxNode* const arm = robot()->getChild(0);
        remove(row(0, robotRow()));
        tree()->collapse(robotRow());
        pressUndo();
        QCOMPARE(selected(), static_cast<NxFieldContainer*>(arm));
        QVERIFY(tree()->isExpanded(robotRow()));
        const QModelIndex armRow = row(0, robotRow());
        QVERIFY(tree()->isExpanded(armRow));
        QVERIFY(tree()->isExpanded(row(0, armRow)));
        QVERIFY(!tree()->isExpanded(row(1, armRow)));
    }

    void aGroupThatIsMovedByKeysStaysUnfolded()
    {
        unfold(row(0, robotRow())); // the arm
        unfold(row(0, row(0, robotRow()))); // the hand
        const auto isUnfoldedAsBefore = [this](int place) {
            const QModelIndex robot = tree()->model()->index(place, 0);
            const QModelIndex arm = row(0, robot);
            return tree()->isExpanded(robot) && tree()->isExpanded(arm) && tree()->isExpanded(row(0, arm))
                && !tree()->isExpanded(row(1, arm));
        };
        QVERIFY(isUnfoldedAsBefore(0));
        const NxNode* const light = sun();
        clickRow(tree(), robotRow());
        pressToMove(Qt::Key_Down);
        QCOMPARE(m_window->document().scene()->getChild(0), light);
        QVERIFY(isUnfoldedAsBefore(1));
        pressToMove(Qt::Key_Up);
        QVERIFY(isUnfoldedAsBefore(0));
        pressUndo();
        QVERIFY(isUnfoldedAsBefore(1));
        // Into a group and out of it.
        const QModelIndex arm = row(0, tree()->model()->index(1, 0));
        clickRow(tree(), row(1, arm));
        pressToMove(Qt::Key_Up);
        clickRow(tree(), row(1, row(0, tree()->model()->index(1, 0)))); // the hand
        pressToMove(Qt::Key_Right);
        const QModelIndex hand = row(1, row(0, row(0, tree()->model()->index(1, 0))));
        QCOMPARE(hand.data().toString(), QStringLiteral("hand"));
        QVERIFY(tree()->isExpanded(hand));
    }

    void anUndoneDeletionOfSeveralNodesSelectsAll()
    {
        unfold(row(0, robotRow()));
        const QModelIndex arm = row(0, robotRow());
        clickRow(tree(), row(0, arm));
        addToSelection(row(1, arm));
        addToSelection(tree()->model()->index(1, 0));
        const auto selectedNames = [this] {
            QStringList names;
            const QModelIndexList rows = panel()->selection().indexes();
            for (const QModelIndex& index : rows)
                names.append(index.data().toString());
            return names;
        };
        const QStringList all{QStringLiteral("hand"), QStringLiteral("folded"), QStringLiteral("sun")};
        QCOMPARE(selectedNames(), all);
        QTest::keyClick(tree(), Qt::Key_Delete);
        AppScenes::runSensors();
        QCoreApplication::processEvents();
        QCOMPARE(m_window->document().scene()->getNumChildren(), 1);
        pressUndo();
        QCOMPARE(selectedNames(), all);
        pressRedo();
        clickRow(tree(), robotRow());
        pressUndo();
        QCOMPARE(selectedNames(), all);
    }

    void aNodeThatWasFoldedStaysFolded()
    {
        const QModelIndex armRow = row(0, robotRow());
        unfold(armRow);
        QTest::keyClick(tree(), Qt::Key_Left);
        remove(armRow);
        pressUndo();
        QVERIFY(!tree()->isExpanded(tree()->model()->index(0, 0, robotRow())));
    }

    void aRedoneAdditionSelectsTheNode()
    {
        NxRef<NxNode> added(new NxGroup);
        robot()->addChild(added.get());
        AppScenes::runSensors();
        QTRY_COMPARE(m_session->services().steps().count(), 1);
        pressUndo();
        clickRow(tree(), tree()->model()->index(1, 0));
        pressRedo();
        QCOMPARE(selected(), static_cast<NxFieldContainer*>(added.get()));
    }

    void otherStepsLeaveTheSelection()
    {
        renameRobot("machine");
        QTRY_COMPARE(m_session->services().steps().count(), 1);
        clickRow(tree(), tree()->model()->index(1, 0));
        pressUndo();
        QCOMPARE(selected(), static_cast<NxFieldContainer*>(sun()));
    }

    void onTheWayThroughManyStepsOnlyTheLastCounts()
    {
        unfold(row(0, robotRow()));
        for (int i = 0; i < 2; ++i) {
            sun()->setName(i == 0 ? "moon" : "star");
            AppScenes::runSensors();
            QTRY_COMPARE(m_session->services().steps().count(), 2 * i + 1);
            remove(row(0, row(0, robotRow())));
            QTRY_COMPARE(m_session->services().steps().count(), 2 * i + 2);
        }
        clickRow(tree(), tree()->model()->index(1, 0));
        auto* const travel = m_window->findChild<StepTravel*>();
        travel->goTo(0); // the last move is that of the name
        QTRY_VERIFY(!travel->isUnderway());
        QCOMPARE(selected(), static_cast<NxFieldContainer*>(sun()));
        travel->goTo(2);
        travel->goTo(1);
        QTRY_VERIFY(!travel->isUnderway());
        QCOMPARE(orvane::toQString(dynamic_cast<NxNode*>(selected())->getName()), QStringLiteral("hand"));
    }
};

QTEST_MAIN(TestReturnedNodes)
#include "tst_ReturnedNodes.moc"
