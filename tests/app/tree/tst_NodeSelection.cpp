#include "app/AppScenes.h"
#include "app/ItemClicks.h"

#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

/// Several nodes that are selected in the tree.
class TestNodeSelection : public QObject {
    Q_OBJECT

private:
    void open(const NxRef<NxGroup>& scene)
    {
        m_scene = scene;
        m_panel = std::make_unique<SceneTreePanel>();
        m_panel->resize(400, 500);
        m_panel->setScene(scene.get());
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
        m_panel->view()->expandAll();
    }
    [[nodiscard]] NxNode* robot(int child = -1)
    {
        auto* const group = dynamic_cast<NxGroup*>(m_scene->getChild(0));
        return child < 0 ? group : group->getChild(child);
    }
    [[nodiscard]] NxNode* sun() { return m_scene->getChild(1); }

    void click(NxNode* node, Qt::KeyboardModifiers modifiers = {})
    {
        const QModelIndex index = m_panel->model()->findNode(node);
        ItemClicks::click(m_panel->view(), index, modifiers);
    }
    /// The selected nodes, the last one first.
    [[nodiscard]] std::vector<const NxFieldContainer*> selected()
    {
        std::vector<const NxFieldContainer*> result;
        if (const auto nodes = m_panel->selection().nodes()) {
            for (const auto& node : *nodes)
                result.push_back(node.get());
        }
        return result;
    }
    using Nodes = std::vector<const NxFieldContainer*>;

private Q_SLOTS:
    void cleanup()
    {
        m_panel.reset();
        m_scene = NxRef<NxGroup>();
        AppScenes::runSensors();
    }

    void controlAddsAndTakesAway()
    {
        open(AppScenes::robot());
        QVERIFY(selected().empty());
        click(robot(0));
        QCOMPARE(selected(), Nodes{robot(0)});
        click(sun(), Qt::ControlModifier);
        QCOMPARE(selected(), (Nodes{sun(), robot(0)}));
        QCOMPARE(m_panel->selectedNode(), sun());
        click(robot(1), Qt::ControlModifier);
        QCOMPARE(selected().size(), std::size_t{3});
        QCOMPARE(selected().front(), robot(1));
        click(robot(1), Qt::ControlModifier);
        QCOMPARE(selected().size(), std::size_t{2});
        QVERIFY(m_panel->selectedNode() != robot(1));
        click(robot(0));
        QCOMPARE(selected(), Nodes{robot(0)});
    }

    void shiftSelectsAllBetween()
    {
        open(AppScenes::robot());
        click(robot(0));
        click(robot(2), Qt::ShiftModifier);
        QCOMPARE(selected(), (Nodes{robot(2), robot(0), robot(1)}));
    }

    void controlAndASelectAll()
    {
        open(AppScenes::robot());
        click(robot(1));
        const QSignalSpy changed(&m_panel->selection(), &NodeSelection::changed);
        QTest::keyClick(m_panel->view(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(selected().size(), std::size_t{5});
        QCOMPARE(m_panel->selectedNode(), robot(1));
    }

    void nodesThatAreDeletedLeaveIt()
    {
        open(AppScenes::robot());
        click(robot(0));
        click(robot(1), Qt::ControlModifier);
        NxNode* const arm = robot(0);
        auto* const group = dynamic_cast<NxGroup*>(robot());
        group->removeChild(1);
        AppScenes::runSensors();
        QCOMPARE(selected(), Nodes{arm});
        QCOMPARE(m_panel->selectedNode(), arm);
        group->removeChild(0); // the last one that is selected
        AppScenes::runSensors();
        QCOMPARE(selected(), Nodes{robot(0)});
        QVERIFY(robot(0) != arm);
        m_panel->setScene(nullptr);
        QVERIFY(selected().empty());
    }

    void nodesAreSelectedByAList()
    {
        open(AppScenes::robot());
        m_panel->view()->collapseAll();
        const NxRef<NxGroup> elsewhere(new NxGroup);
        const std::vector<NxNode*> wanted{robot(2), sun(), robot(0), elsewhere.get()};
        m_panel->selection().select(wanted);
        QCOMPARE(selected(), (Nodes{robot(2), robot(0), sun()}));
        QVERIFY(m_panel->view()->isExpanded(m_panel->model()->findNode(robot())));
        m_panel->selection().select({});
        QVERIFY(selected().empty());
    }

    void rowsAreSelectedInTheOrderOfTheTree()
    {
        open(AppScenes::robot());
        const auto indexOf = [this](NxNode* node) { return m_panel->model()->findNode(node); };
        const QModelIndexList wanted{
            indexOf(sun()), indexOf(robot(2)), indexOf(robot()), indexOf(robot(0)), indexOf(robot(2))};
        m_panel->selection().selectIndexes(wanted);
        QCOMPARE(m_panel->selectedNode(), sun());
        QCOMPARE(m_panel->selection().indexes(),
            (QModelIndexList{indexOf(robot()), indexOf(robot(0)), indexOf(robot(2)), indexOf(sun())}));
        m_panel->selection().selectIndexes(wanted, indexOf(robot(2)));
        QCOMPARE(m_panel->selectedNode(), robot(2));
        QCOMPARE(selected().size(), std::size_t{4});
        m_panel->selection().selectIndexes({indexOf(robot(1)).siblingAtColumn(SceneTreeModel::ClassColumn)});
        QCOMPARE(selected(), Nodes{robot(1)});
        m_panel->selection().selectIndexes({});
        QVERIFY(m_panel->selection().indexes().isEmpty());
    }

    void aNodeInTwoPlacesIsThereOnce()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        const NxRef<NxGroup> shared(new NxGroup);
        for (int i = 0; i < 2; ++i) {
            const NxRef<NxGroup> group(new NxGroup);
            group->addChild(shared.get());
            scene->addChild(group.get());
        }
        open(scene);
        QTest::keyClick(m_panel->view(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(selected().size(), std::size_t{3});
    }

    void aHundredThousandNodesAreSelected()
    {
        open(AppScenes::wide(100'000));
        QTest::keyClick(m_panel->view(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(selected().size(), std::size_t{100'001});
        const auto nodes = m_panel->selection().nodes();
        QCOMPARE(m_panel->selection().nodes(), nodes);
        auto* const group = dynamic_cast<NxGroup*>(robot());
        std::vector<NxNode*> everyOther;
        for (int i = 0; i < 100'000; i += 2)
            everyOther.push_back(group->getChild(i));
        m_panel->selection().select(everyOther);
        QCOMPARE(selected().size(), std::size_t{50'000});
        QCOMPARE(m_panel->selectedNode(), everyOther.front());
    }

private:
    NxRef<NxGroup> m_scene;
    std::unique_ptr<SceneTreePanel> m_panel;
};

QTEST_MAIN(TestNodeSelection)
#include "tst_NodeSelection.moc"
