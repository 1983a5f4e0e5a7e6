#include "app/AppScenes.h"

#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/tree/TreeActions.h"
#include "orvane/app/tree/TreeUnfolding.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTreeView>

#include <random>
#include <set>

namespace {

/// Groups in groups: each has `width` children, so many levels deep.
NxRef<NxGroup> bushy(int width, int levels)
{
    NxRef<NxGroup> group(new NxGroup);
    for (int i = 0; levels > 0 && i < width; ++i)
        group->addChild(bushy(width, levels - 1).get());
    return group;
}

} // namespace

/// Folding and selecting by the keys and actions of the tree.
class TestTreeActions : public QObject {
    Q_OBJECT

private:
    void open(const NxRef<NxGroup>& scene)
    {
        m_scene = scene;
        m_panel = std::make_unique<SceneTreePanel>();
        m_panel->resize(400, 500);
        m_actions = new TreeActions(m_panel.get(), &m_bar);
        m_panel->setScene(scene.get());
        m_panel->show();
        m_panel->activateWindow();
        m_panel->view()->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    }
    [[nodiscard]] QAction* action(const char* name) const
    {
        return m_panel->findChild<QAction*>(QString::fromLatin1(name));
    }
    [[nodiscard]] SceneTreeModel& model() const { return *m_panel->model(); }
    /// The rows that the tree shows unfolded.
    [[nodiscard]] QModelIndexList rows() const
    {
        QModelIndexList result;
        for (QModelIndex index = model().index(0, 0); index.isValid(); index = m_panel->view()->indexBelow(index))
            result.append(index);
        return result;
    }
    void press(int key, Qt::KeyboardModifiers modifiers) { QTest::keyClick(m_panel->view(), Qt::Key(key), modifiers); }
    [[nodiscard]] std::set<const NxNode*> selected() const
    {
        std::set<const NxNode*> result;
        const QModelIndexList indexes = m_panel->selection().indexes();
        for (const QModelIndex& index : indexes)
            result.insert(model().node(index));
        return result;
    }

private Q_SLOTS:
    void cleanup()
    {
        m_panel.reset();
        m_scene = NxRef<NxGroup>();
        AppScenes::runSensors();
    }

    void keysUnfoldToALevel()
    {
        open(bushy(3, 4));
        const QAbstractItemModelTester tester(&model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        press(Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rows().size(), 3);
        press(Qt::Key_3, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rows().size(), 3 + 9 + 27);
        press(Qt::Key_2, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rows().size(), 3 + 9);
        press(Qt::Key_9, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rows().size(), 3 + 9 + 27 + 81);
    }

    void selectedRowsAreUnfoldedAndFolded()
    {
        open(bushy(3, 4));
        press(Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!action("tree.unfoldSelected")->isEnabled());
        m_panel->selection().selectIndexes({model().index(0, 0), model().index(2, 0)});
        action("tree.unfoldSelected")->trigger();
        QCOMPARE(rows().size(), 3 + 2 * (3 + 9 + 27));
        m_panel->select(model().index(0, 0));
        action("tree.foldSelected")->trigger();
        QCOMPARE(rows().size(), 3 + 3 + 9 + 27);
        m_panel->view()->expand(model().index(0, 0));
        QCOMPARE(rows().size(), 3 + 3 + 9 + 27 + 3); // what is below is folded as well
        press(Qt::Key_Asterisk, Qt::NoModifier);
        QCOMPARE(rows().size(), 3 + 2 * (3 + 9 + 27));
    }

    void aTreeThatIsTooLongIsUnfoldedAsFarAsItGoes()
    {
        open(bushy(60, 3)); // 216,000 nodes on the last level
        const QSignalSpy noted(m_actions, &TreeActions::noted);
        press(Qt::Key_9, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rows().size(), 60 + 3600);
        QCOMPARE(noted.size(), 1);
        QVERIFY(noted.front().front().toString().contains(QStringLiteral("100000")));
    }

    void childrenAndInverseAreSelected()
    {
        open(AppScenes::robot());
        m_panel->select(model().index(0, 0));
        press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(m_panel->selection().indexes().size(), 3);
        press(Qt::Key_A, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(m_panel->selection().indexes(), (QModelIndexList{model().index(0, 0), model().index(1, 0)}));
        const QSignalSpy noted(m_actions, &TreeActions::noted);
        m_panel->select(model().index(1, 0));
        press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(noted.size(), 1);
        QCOMPARE(m_panel->selected(), model().index(1, 0));
    }

    void nodesOfTheSameClassAreSelected()
    {
        open(AppScenes::robot());
        press(Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier);
        m_panel->select(model().index(1, 0, model().index(0, 0)));
        NxNode* const hand = m_panel->selectedNode();
        action("tree.selectSameClass")->trigger();
        QCOMPARE(selected().size(), std::size_t{3});
        QCOMPARE(m_panel->selectedNode(), hand);
    }

    void withoutASceneNothingCanBeDone()
    {
        open(NxRef<NxGroup>());
        for (const char* const name : {"tree.unfoldTo3", "tree.invertSelection", "tree.selectChildren"}) {
            QVERIFY2(!action(name)->isEnabled(), name);
            QVERIFY2(action(name)->toolTip() != action(name)->statusTip(), name);
        }
    }

    // Against sets of nodes, while the scene changes.
    void randomSelectionsAreKept()
    {
        open(bushy(4, 3));
        press(Qt::Key_9, Qt::ControlModifier | Qt::ShiftModifier);
        const QAbstractItemModelTester tester(&model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        std::mt19937 random(5);
        const auto any = [&random](std::size_t count) { return static_cast<qsizetype>(random() % count); };
        std::set<const NxNode*> expected;
        for (int step = 0; step < 300; ++step) {
            const QModelIndexList all = rows();
            const QModelIndex row = all[any(static_cast<std::size_t>(all.size()))];
            NxNode* const node = model().node(row);
            switch (any(4)) {
            case 0: {
                m_panel->selection().toggle(row);
                if (!expected.erase(node))
                    expected.insert(node);
                break;
            }
            case 1: {
                QModelIndexList some{row, all[any(static_cast<std::size_t>(all.size()))]};
                m_panel->selection().selectIndexes(some);
                expected = {node, model().node(some[1])};
                break;
            }
            case 2:
                action("tree.invertSelection")->trigger();
                {
                    std::set<const NxNode*> others;
                    for (const QModelIndex& other : all)
                        others.insert(model().node(other));
                    for (const NxNode* const before : expected)
                        others.erase(before);
                    expected = others;
                }
                break;
            default: { // the place of a group changes among its siblings, with all that is in it
                NxGroup* const group = model().group(row);
                const NxRef<NxNode> moved(new NxGroup);
                group->insertChild(moved.get(), static_cast<int>(any(group->getChildren().size())));
                AppScenes::runSensors();
                break;
            }
            }
            QCOMPARE(selected(), expected);
        }
    }

private:
    NxRef<NxGroup> m_scene;
    QStatusBar m_bar;
    std::unique_ptr<SceneTreePanel> m_panel;
    TreeActions* m_actions = nullptr;
};

QTEST_MAIN(TestTreeActions)
#include "tst_TreeActions.moc"
