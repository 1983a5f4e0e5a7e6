#include "app/window/RobotWindowCase.h"

#include "orvane/app/tree/SceneTreePanel.h"

#include "meridane/scene/fields/NxField.h"

class TestMainWindowSelection : public RobotWindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startBesideRobot(); }
    void cleanup() { endTool(); }

    void selectsNodeAndFieldByTheMouse()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(1, 0));
        QCOMPARE(m_session->services().getSelectedNode(), m_window->document().scene()->getChild(1));
        QCOMPARE(m_session->services().getSelectedField(), nullptr);
        QVERIFY(table()->isVisible());
        const QSignalSpy selected(&m_session->services(), &OrvServices::selectedFieldChanged);
        clickRow(table(), fieldRow(0));
        QCOMPARE(m_session->services().getSelectedField(), sun()->getFields().front());
        QCOMPARE(selected.size(), 1);
        clickRow(table(), fieldRow(0).siblingAtColumn(FieldTableModel::NameColumn));
        QCOMPARE(selected.size(), 2);
    }

    void choosesNoOtherFieldWhileTheButtonIsHeld()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(1, 0));
        QWidget* viewport = table()->viewport();
        const auto middle = [&](int row) { return table()->visualRect(fieldRow(row)).center(); };
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, middle(0));
        QMouseEvent move(QEvent::MouseMove, QPointF(middle(2)), viewport->mapToGlobal(QPointF(middle(2))), Qt::NoButton,
            Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, middle(2));
        QCOMPARE(m_session->services().getSelectedField(), sun()->getFields().front());
    }

    void choosesNothingByTakingTheFocus()
    {
        open(m_robot);
        tree()->setFocus();
        QCOMPARE(m_session->services().getSelectedNode(), nullptr);
        clickRow(tree(), tree()->model()->index(1, 0));
        table()->setFocus();
        QCOMPARE(m_session->services().getSelectedField(), nullptr);
    }

    void selectsByPath()
    {
        open(m_robot);
        QVERIFY(m_window->selectPath(QStringLiteral("/robot/hand")));
        QCOMPARE(m_session->services().getSelectedNode(), robot()->getChild(1));
        const QString field = QString::fromLatin1(sun()->getFieldName(sun()->getFields().front()).getString());
        QVERIFY(m_window->selectPath(QStringLiteral("/sun.") + field));
        QCOMPARE(m_session->services().getSelectedField(), sun()->getFields().front());
        QVERIFY(!m_window->selectPath(QStringLiteral("/moon")));
        QCOMPARE(m_session->services().getSelectedNode(), sun());
    }

    void keepsTheFieldOfTheSameNameSelected()
    {
        open(m_robot);
        QVERIFY(m_window->selectPath(QStringLiteral("/robot/arm")));
        NxNode* arm = robot()->getChild(0);
        m_session->services().selectField(arm->getFields().front());
        QVERIFY(m_window->selectPath(QStringLiteral("/robot")));
        tree()->setFocus();
        const QModelIndex robotRow = tree()->model()->index(0, 0);
        clickRow(tree(), tree()->model()->index(0, 0, robotRow));
        clickRow(table(), fieldRow(0));
        QTest::keyClick(tree(), Qt::Key_Down);
        QCOMPARE(m_session->services().getSelectedNode(), robot()->getChild(1));
        QCOMPARE(m_session->services().getSelectedField(), robot()->getChild(1)->getFields().front());
    }

    void followsASelectionMadeElsewhere()
    {
        open(m_robot);
        m_session->services().selectNode(robot()->getChild(1));
        QCOMPARE(m_window->findChild<SceneTreePanel*>()->selectedNode(), robot()->getChild(1));
        m_session->services().selectField(sun()->getFields().back());
        QCOMPARE(m_session->services().getSelectedNode(), sun());
        QCOMPARE(m_session->services().getSelectedField(), sun()->getFields().back());
        QVERIFY(table()->selectionModel()->isSelected(fieldRow(-1)));
    }

    void everySlotSeesTheSelectionThatASlotReplaces()
    {
        open(m_robot);
        NxField* const wanted = sun()->getFields().back();
        m_session->services().selectField(robot()->getChild(0)->getFields().front());
        // As a plug-in that follows the node and has a favourite field.
        const QObject plugin;
        connect(&m_session->services(), &OrvServices::selectedNodeChanged, &plugin, [&](const NxFieldContainer* node) {
            if (node == robot())
                m_session->services().selectField(wanted);
        });
        const NxField* announced = nullptr;
        connect(&m_session->services(), &OrvServices::selectedFieldChanged, &plugin,
            [&](const NxField* field) { announced = field; });
        clickRow(tree(), tree()->model()->index(0, 0));
        QCOMPARE(m_session->services().getSelectedField(), wanted);
        QCOMPARE(announced, wanted);
        QCOMPARE(m_session->services().getSelectedNode(), sun());
        QCOMPARE(m_window->findChild<SceneTreePanel*>()->selectedNode(), sun());
        QVERIFY(table()->selectionModel()->isSelected(fieldRow(-1)));
    }
};

QTEST_MAIN(TestMainWindowSelection)
#include "tst_MainWindowSelection.moc"
