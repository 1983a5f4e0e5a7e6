#include "app/window/RobotWindowCase.h"

#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/extender/OrvStepList.h"

#include "meridane/scene/fields/NxField.h"

#include <QLabel>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

/// Several nodes, from the tree to the table and the history.
class TestSeveralNodes : public RobotWindowCase {
    Q_OBJECT

private:
    void openRobot()
    {
        open(m_robot);
        tree()->expandAll();
    }
    void clickNode(NxNode* node, Qt::KeyboardModifiers modifiers = {})
    {
        const QModelIndex index = m_window->findChild<SceneTreePanel*>()->model()->findNode(node);
        tree()->scrollTo(index);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, modifiers, tree()->visualRect(index).center());
    }
    [[nodiscard]] FieldPanel* panel() { return m_window->findChild<FieldPanel*>(); }
    [[nodiscard]] QString heading() { return panel()->findChild<QLabel*>(u"fieldHeading"_s)->text(); }
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    /// The field of that name of the node.
    static NxField* field(NxNode* node, const char* name) { return node->getField(name); }

private Q_SLOTS:
    void init() { startBesideRobot(); }
    void cleanup() { endTool(); }

    void theTableShowsTheFieldsOfAllAndTheDocksFollowTheLast()
    {
        openRobot();
        clickNode(robot()->getChild(0));
        clickNode(robot()->getChild(1), Qt::ControlModifier);
        QCOMPARE(services().getSelectedNode(), robot()->getChild(1));
        QVERIFY2(heading().startsWith(u"2 nodes"_s), qPrintable(heading()));
        const QModelIndex row = fieldRow(field(robot()->getChild(1), "positions"));
        QCOMPARE(panel()->model()->fieldSet(row).count(), 2);
        // The field that is chosen stays as nodes are added.
        clickRow(table(), row);
        NxField* const last = field(robot()->getChild(1), "positions");
        QCOMPARE(services().getSelectedField(), last);
        clickNode(robot()->getChild(2), Qt::ControlModifier);
        QVERIFY2(heading().startsWith(u"3 nodes"_s), qPrintable(heading()));
        QCOMPARE(services().getSelectedField(), field(robot()->getChild(2), "positions"));
        QCOMPARE(panel()->currentField(), services().getSelectedField());
        // A light has no field in common with meshes.
        clickNode(sun(), Qt::ControlModifier);
        QCOMPARE(panel()->model()->rowCount(), 0);
        QVERIFY(panel()->findChild<QLabel*>(u"noFieldFound"_s)->isVisible());
        clickNode(sun());
        QCOMPARE(panel()->model()->nodeCount(), 1);
        QCOMPARE(services().getSelectedNode(), sun());
    }

    void aKeyChangesAllNodesAsOneStep()
    {
        openRobot();
        clickNode(robot()->getChild(0));
        clickNode(robot()->getChild(2), Qt::ShiftModifier);
        clickRow(table(), fieldRow(field(robot()->getChild(2), "positions")));
        const int steps = services().undoDepth();
        QTest::keyClick(table(), Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
        QTRY_COMPARE(services().steps().count(), steps + 1);
        for (int child = 0; child < 3; ++child)
            QVERIFY(field(robot()->getChild(child), "positions")->isIgnored());
        QCOMPARE(services().steps().label(steps), u"Ignore positions of 3 nodes"_s);
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        for (int child = 0; child < 3; ++child)
            QVERIFY(!field(robot()->getChild(child), "positions")->isIgnored());
    }

    void aNodeThatIsRemovedLeavesTheTable()
    {
        openRobot();
        clickNode(robot()->getChild(0));
        clickNode(robot()->getChild(1), Qt::ControlModifier);
        QVERIFY(robot()->removeChild(0));
        AppScenes::runSensors();
        QCOMPARE(panel()->model()->nodeCount(), 1);
        QCOMPARE(services().getSelectedNode(), panel()->model()->node());
    }

    void nodesWithTheSameValueAreSelected()
    {
        openRobot();
        clickNode(robot()->getChild(1));
        clickRow(table(), fieldRow(field(robot()->getChild(1), "positions")));
        QTest::keyClick(table(), Qt::Key_F, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(panel()->model()->nodeCount(), 3);
        QCOMPARE(m_window->findChild<SceneTreePanel*>()->selection().nodes()->size(), std::size_t{3});
    }
};

QTEST_MAIN(TestSeveralNodes)
#include "tst_SeveralNodes.moc"
