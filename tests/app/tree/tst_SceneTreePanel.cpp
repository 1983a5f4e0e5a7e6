#include "app/AppScenes.h"
#include "app/ItemClicks.h"

#include "orvane/app/tree/HiddenNodes.h"
#include "orvane/app/tree/NodeMarks.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include "meridane/scene/fields/NxField.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

namespace {

/// One hit, in the first group of the scene.
class OneHit : public NodeMarks {
public:
    OneHit(const NxNode* hit, const NxNode* parent)
        : m_hit(hit)
        , m_parent(parent)
    {
    }
    [[nodiscard]] bool isHit(const NxNode& node) const override { return &node == m_hit; }
    [[nodiscard]] bool leadsToHit(const NxNode& node) const override { return &node == m_parent; }

private:
    const NxNode* m_hit;
    const NxNode* m_parent;
};

} // namespace

/// What the panel of the tree does beside selecting.
class TestSceneTreePanel : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] SceneTreeModel& model() { return *m_panel->model(); }
    [[nodiscard]] NxNode* robot(int child = -1)
    {
        auto* const group = dynamic_cast<NxGroup*>(m_scene->getChild(0));
        return child < 0 ? group : group->getChild(child);
    }
    [[nodiscard]] QModelIndex indexOf(NxNode* node) { return model().findNode(node); }
    [[nodiscard]] bool isUnfolded(NxNode* node) { return m_panel->view()->isExpanded(indexOf(node)); }
    [[nodiscard]] QColor textColor(NxNode* node)
    {
        const QRect row = m_panel->view()->visualRect(indexOf(node));
        const QImage picture = m_panel->view()->viewport()->grab(row).toImage();
        QColor darkest = Qt::white;
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if (const QColor pixel = picture.pixelColor(x, y); pixel.lightness() < darkest.lightness())
                    darkest = pixel;
            }
        }
        return darkest;
    }

    void clickEye(NxNode* node)
    {
        const QModelIndex eye = indexOf(node).siblingAtColumn(SceneTreeModel::ShownColumn);
        ItemClicks::click(m_panel->view(), eye);
    }
    [[nodiscard]] QString accessibleText(NxNode* node)
    {
        return indexOf(node).siblingAtColumn(SceneTreeModel::ShownColumn).data(Qt::AccessibleTextRole).toString();
    }

private Q_SLOTS:
    void init()
    {
        m_scene = AppScenes::robot();
        m_panel = std::make_unique<SceneTreePanel>();
        m_panel->resize(400, 500);
        m_panel->setScene(m_scene.get());
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
    }
    void cleanup()
    {
        m_panel.reset();
        m_scene = NxRef<NxGroup>();
        AppScenes::runSensors();
    }

    void hitsAreBoldAndOthersGrey()
    {
        const QAbstractItemModelTester tester(&model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QColor usual = textColor(robot(1));
        m_panel->setMarks(std::make_shared<OneHit>(robot(0), robot()));
        QVERIFY(indexOf(robot(0)).data(Qt::FontRole).value<QFont>().bold());
        QVERIFY(!indexOf(robot(0)).data(SceneTreeModel::GreyedRole).toBool());
        QVERIFY(!indexOf(robot()).data(SceneTreeModel::GreyedRole).toBool());
        QVERIFY(!indexOf(robot()).data(Qt::FontRole).value<QFont>().bold());
        QVERIFY(indexOf(robot(1)).data(SceneTreeModel::GreyedRole).toBool());
        QVERIFY(textColor(robot(1)).lightness() > usual.lightness());
        m_panel->setMarks(nullptr);
        QVERIFY(!indexOf(robot(1)).data(SceneTreeModel::GreyedRole).toBool());
        QVERIFY(!indexOf(robot(0)).data(Qt::FontRole).value<QFont>().bold());
        QCOMPARE(textColor(robot(1)), usual);
    }

    void aClickOnAnEyeHidesTheNode()
    {
        clickEye(robot(0));
        QCOMPARE(m_panel->hidden().hidden(), std::vector<NxNode*>{robot(0)});
        QVERIFY(!m_panel->selected().isValid()); // it selects nothing
        QCOMPARE(accessibleText(robot(0)), QStringLiteral("Hidden"));
        clickEye(robot());
        QCOMPARE(accessibleText(robot(1)), QStringLiteral("Hidden"));
        clickEye(robot(1)); // below a hidden group: shows it, and so the group
        QCOMPARE(m_panel->hidden().hidden(), std::vector<NxNode*>{robot(0)});
        QCOMPARE(accessibleText(robot(1)), QStringLiteral("Shown"));
        m_panel->hidden().isolate(std::vector<NxNode*>{robot(2)});
        clickEye(robot(1));
        QCOMPARE(m_panel->hidden().isolated(), (std::vector<NxNode*>{robot(2), robot(1)}));
    }

    void anEyeOfTheSelectionHidesAllOfIt()
    {
        m_panel->selection().select(std::vector<NxNode*>{robot(0), robot(2)});
        clickEye(robot(2));
        QCOMPARE(m_panel->hidden().hidden(), (std::vector<NxNode*>{robot(0), robot(2)}));
        clickEye(robot(1));
        QCOMPARE(m_panel->hidden().hidden().size(), std::size_t{3});
        clickEye(robot(0));
        QCOMPARE(m_panel->hidden().hidden(), std::vector<NxNode*>{robot(1)});
    }

    void foldedNodesHaveTheNumberOfTheirChildren()
    {
        QTreeView& view = *m_panel->view();
        const auto rowPicture = [&] { return view.viewport()->grab(view.visualRect(indexOf(robot()))).toImage(); };
        const QImage unfolded = rowPicture();
        view.collapseAll();
        const QImage three = rowPicture();
        QVERIFY(three != unfolded);
        dynamic_cast<NxGroup*>(robot())->removeChild(0);
        AppScenes::runSensors();
        QVERIFY(rowPicture() != three);
    }

    void nodesWithIgnoredFieldsAreKnown()
    {
        QVERIFY(!indexOf(robot(0)).data(SceneTreeModel::IgnoredRole).toBool());
        const QSignalSpy changed(&model(), &QAbstractItemModel::dataChanged);
        QVERIFY(!m_panel->view()->viewport()->grab().isNull()); // asks for the rows
        robot(0)->getFields().front()->setIgnored(1);
        AppScenes::runSensors();
        QVERIFY(indexOf(robot(0)).data(SceneTreeModel::IgnoredRole).toBool());
        QCOMPARE(changed.size(), 1);
        const QString tip = indexOf(robot(0)).data(Qt::ToolTipRole).toString();
        QVERIFY2(tip.contains(QStringLiteral("Ignored fields: ")), qPrintable(tip));
    }

    void foldsAreRestored()
    {
        QVERIFY(isUnfolded(robot()));
        const FoldState unfolded = m_panel->foldState();
        m_panel->view()->collapseAll();
        const FoldState folded = m_panel->foldState();
        QVERIFY(folded.unfolded().empty());
        m_panel->unfoldTo(std::vector<NxNode*>{robot(), robot(1)});
        QVERIFY(isUnfolded(robot()));
        m_panel->restoreFolds(folded);
        QVERIFY(!isUnfolded(robot()));
        m_panel->restoreFolds(unfolded);
        QVERIFY(isUnfolded(robot()));
        QVERIFY(m_panel->view()->visualRect(indexOf(robot(2))).isValid());
    }

    void rowsThatAreGoneStayAway()
    {
        const FoldState unfolded = m_panel->foldState();
        m_scene->removeChild(0);
        AppScenes::runSensors();
        m_panel->restoreFolds(unfolded);
        QVERIFY(m_panel->foldState().unfolded().empty());
    }

    void aWidgetIsShownAboveTheTree()
    {
        auto* const line = new QLabel(QStringLiteral("Find"));
        m_panel->setHeaderWidget(line);
        QTRY_VERIFY(m_panel->view()->y() >= line->geometry().bottom());
        QVERIFY(line->isVisible());
        const QPointer<QWidget> known(line);
        m_panel->setHeaderWidget(nullptr);
        QVERIFY(known.isNull());
        QTRY_COMPARE(m_panel->view()->y(), 0);
    }

private:
    NxRef<NxGroup> m_scene;
    std::unique_ptr<SceneTreePanel> m_panel;
};

QTEST_MAIN(TestSceneTreePanel)
#include "tst_SceneTreePanel.moc"
