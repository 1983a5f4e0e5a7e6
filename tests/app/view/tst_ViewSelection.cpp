#include "app/view/SceneViewCase.h"

#include "orvane/app/scene/NodeSearch.h"
#include "orvane/app/tree/HiddenNodes.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/HidingActions.h"
#include "orvane/app/view/ViewSelection.h"

#include <QAction>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeView>

/// Selecting several nodes in the view, and hiding them there. The squares are red on the left and green on the right.
class TestViewSelection : public SceneViewCase {
    Q_OBJECT

private:
    using Nodes = std::vector<const NxFieldContainer*>;

    [[nodiscard]] Nodes selected() const
    {
        Nodes result;
        if (const auto nodes = m_tree->selection().nodes()) {
            for (const auto& node : *nodes)
                result.push_back(node.get());
        }
        std::sort(result.begin(), result.end());
        return result;
    }
    [[nodiscard]] static Nodes sorted(Nodes nodes)
    {
        std::sort(nodes.begin(), nodes.end());
        return nodes;
    }
    [[nodiscard]] NxNode* meshAt(float x)
    {
        const auto hit = m_view->hitAt(QPointF(at(x, 0)));
        return hit ? hit->path.back() : nullptr;
    }
    void click(float x, Qt::KeyboardModifiers modifiers)
    {
        QTest::mouseClick(m_view.get(), Qt::LeftButton, modifiers, at(x, 0));
    }
    void rectangle(float left, float right, Qt::KeyboardModifiers modifiers = Qt::ShiftModifier)
    {
        drag(Qt::LeftButton, modifiers, at(left, 1.4F), at(right, -1.4F));
    }
    [[nodiscard]] QAction* action(const char* name) const
    {
        return m_view->findChild<QAction*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QToolButton* status() const { return m_bar->findChild<QToolButton*>(); }

private Q_SLOTS:
    void init()
    {
        showSquares();
        m_tree = std::make_unique<SceneTreePanel>();
        m_tree->setScene(m_scene.get());
        m_tree->show();
        m_bar = std::make_unique<QStatusBar>();
        m_bar->show();
        new ViewSelection(m_view.get(), m_tree.get());
        new HidingActions(m_view.get(), m_tree.get(), m_bar.get());
        m_left = meshAt(-2);
        m_right = meshAt(2);
        QVERIFY(m_left != nullptr && m_right != nullptr && m_left != m_right);
    }
    void cleanup()
    {
        m_view.reset();
        m_tree.reset();
        m_bar.reset();
        endView();
        AppScenes::runSensors();
    }

    void shiftAndAClickToggle()
    {
        const NxViewpoint before = m_view->viewpoint();
        click(-2, Qt::ShiftModifier);
        QCOMPARE(selected(), Nodes{m_left});
        click(2, Qt::ShiftModifier);
        QCOMPARE(selected(), sorted({m_left, m_right}));
        QCOMPARE(m_tree->selectedNode(), m_right);
        click(2, Qt::ShiftModifier);
        QCOMPARE(selected(), Nodes{m_left});
        QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::ShiftModifier, QPoint(2, 2)); // on nothing
        QCOMPARE(selected(), Nodes{m_left});
        QCOMPARE(m_view->viewpoint(), before);
    }

    void aRectangleSelectsWhatIsSeenInIt()
    {
        const NxViewpoint before = m_view->viewpoint();
        rectangle(-3.2F, 0);
        QCOMPARE(selected(), Nodes{m_left});
        rectangle(1.9F, 2.1F);
        QCOMPARE(selected(), sorted({m_left, m_right}));
        QCOMPARE(m_tree->selectedNode(), m_left); // stays the last one
        rectangle(-3.2F, 0, Qt::ShiftModifier | Qt::ControlModifier);
        QCOMPARE(selected(), Nodes{m_right});
        rectangle(-0.2F, 0.2F); // holds nothing
        QCOMPARE(selected(), Nodes{m_right});
        QCOMPARE(m_view->viewpoint(), before);
    }

    void theRectangleIsShownWhileItIsDrawn()
    {
        const QImage before = shown();
        const QPoint from = at(-3, 1);
        const QPoint to = at(3, -1);
        QTest::mousePress(m_view.get(), Qt::LeftButton, Qt::ShiftModifier, from);
        QMouseEvent move(QEvent::MouseMove, QPointF(to), m_view->mapToGlobal(QPointF(to)), Qt::NoButton, Qt::LeftButton,
            Qt::ShiftModifier);
        QApplication::sendEvent(m_view.get(), &move);
        QVERIFY(picture() != before);
        QTest::keyClick(m_view.get(), Qt::Key_Escape);
        QCOMPARE(picture(), before);
        QTest::mouseRelease(m_view.get(), Qt::LeftButton, Qt::ShiftModifier, to);
        QVERIFY(selected().empty());
    }

    void allSelectedNodesAreOutlined()
    {
        const QImage before = shown();
        click(-2, Qt::ShiftModifier);
        m_view->setSelectedPath(m_tree->model()->path(m_tree->selected()));
        const QImage one = shown();
        QVERIFY(one != before);
        click(2, Qt::ShiftModifier);
        m_view->setSelectedPath(m_tree->model()->path(m_tree->selected()));
        const QImage two = shown();
        const QRect left(0, 0, two.width() / 2, two.height());
        QVERIFY(two.copy(left) != before.copy(left)); // the one before is still outlined
        QVERIFY(two.copy(left) != one.copy(left)); // but with the weaker line
    }

    void selectedNodesAreHidden()
    {
        QVERIFY(!action("node.hide")->isEnabled());
        QVERIFY(!status()->isVisible());
        rectangle(-3.2F, 0);
        m_view->activateWindow();
        m_view->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
        QTest::keyClick(m_view.get(), Qt::Key_H);
        QCOMPARE(meshAt(-2), nullptr);
        QCOMPARE(meshAt(2), m_right);
        QVERIFY(status()->isVisible());
        QCOMPARE(status()->text(), QStringLiteral("1 hidden"));
        rectangle(-3.2F, 3.2F);
        QCOMPARE(selected(), sorted({m_left, m_right})); // what was hidden stays selected
        QTest::mouseClick(status(), Qt::LeftButton);
        QCOMPARE(meshAt(-2), m_left);
        QVERIFY(!status()->isVisible());
    }

    void aNodeInTwoPlacesIsHiddenInBoth()
    {
        m_scene->addChild(m_left);
        AppScenes::runSensors();
        rectangle(-3.2F, 0);
        action("node.hide")->trigger();
        QTRY_COMPARE(status()->text(), QStringLiteral("1 hidden in 2 places"));
        m_scene->removeChild(m_scene->getNumChildren() - 1);
        AppScenes::runSensors();
        QTRY_COMPARE(status()->text(), QStringLiteral("1 hidden"));
    }

    void selectedNodesAreIsolated()
    {
        rectangle(0, 3.2F);
        m_view->activateWindow();
        m_view->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
        QTest::keyClick(m_view.get(), Qt::Key_H, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(meshAt(-2), nullptr);
        QCOMPARE(meshAt(2), m_right);
        QCOMPARE(status()->text(), QStringLiteral("1 node isolated"));
        QTest::keyClick(m_view.get(), Qt::Key_H, Qt::ShiftModifier);
        QCOMPARE(meshAt(-2), m_left);
        QVERIFY(!action("view.showAll")->isEnabled());
    }

    /// The view would be empty without the last of them.
    void deletedNodesAreIsolatedNoMore()
    {
        rectangle(-3.2F, 3.2F);
        action("node.isolate")->trigger();
        QCOMPARE(m_tree->hidden().isolated().size(), std::size_t{2});
        const auto remove = [this](const NxNode* node) {
            QVERIFY(m_scene->removeChild(m_scene->findChild(orvane::findPath(m_scene.get(), node).front())));
            AppScenes::runSensors();
            QApplication::processEvents();
        };
        remove(m_left);
        QCOMPARE(status()->text(), QStringLiteral("2 nodes isolated")); // one of them is still shown
        remove(m_right);
        QTRY_VERIFY(m_tree->hidden().isEmpty());
        QCOMPARE(m_bar->currentMessage(),
            QStringLiteral("No isolated node is left in the scene, so the others are shown again."));
    }

    void theSceneStaysAsItIs()
    {
        const std::string before = NxSceneWriter::toText(m_scene.get());
        rectangle(-3.2F, 3.2F);
        action("node.hide")->trigger();
        QCOMPARE(meshAt(-2), nullptr);
        QCOMPARE(NxSceneWriter::toText(m_scene.get()), before);
        m_tree->setScene(nullptr);
        QVERIFY(m_tree->hidden().isEmpty());
    }

private:
    std::unique_ptr<SceneTreePanel> m_tree;
    std::unique_ptr<QStatusBar> m_bar;
    NxNode* m_left = nullptr;
    NxNode* m_right = nullptr;
};

QTEST_MAIN(TestViewSelection)
#include "tst_ViewSelection.moc"
