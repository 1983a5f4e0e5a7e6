#include "app/window/RobotWindowCase.h"

#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/lists/ListPanel.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/window/DockHeights.h"
#include "orvane/app/window/ListDock.h"
#include "orvane/app/window/WindowShell.h"
#include "orvane/extender/OrvShell.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

/// The dock of lists in the window.
class TestListDock : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] ListDock* dock() { return m_window->findChild<ListDock*>(); }
    [[nodiscard]] ListPanel* panel() { return m_window->findChild<ListPanel*>(); }
    void pressKey() { QTest::keyClick(m_window.get(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier); }
    [[nodiscard]] NxMesh* arm() { return dynamic_cast<NxMesh*>(robot()->getChild(0)); }
    void openMesh()
    {
        open(m_robot);
        arm()->positions.setValues(std::vector<VbVec3f>(100));
        m_session->services().select(arm(), &arm()->positions);
        AppScenes::runSensors();
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
        pressKey();
        QVERIFY(!dock()->isVisible());
    }

    void theViewMenuListsIt()
    {
        Q_EMIT m_window->findChild<QMenu*>(u"viewMenu"_s)->aboutToShow();
        const auto* const menu = m_window->findChild<QMenu*>(u"docksMenu"_s);
        QVERIFY(menu->actions().contains(dock()->toggleViewAction()));
    }

    void itOpensWithEightRows()
    {
        openMesh();
        pressKey();
        QCOMPARE(panel()->list(), &arm()->positions);
        QTRY_VERIFY(panel()->view()->rowAt(panel()->view()->viewport()->height() - 1) >= 7
            || panel()->view()->rowViewportPosition(7) + panel()->view()->rowHeight(7)
                <= panel()->view()->viewport()->height());
    }

    void aPanelOfFieldsOpensAList()
    {
        openMesh();
        Q_EMIT m_window->findChild<FieldPanel*>()->listRequested(&arm()->positions);
        QVERIFY(dock()->isVisible());
        QCOMPARE(panel()->list(), &arm()->positions);
        QCOMPARE(QApplication::focusWidget(), panel()->view());
        QCOMPARE(panel()->view()->currentIndex().row(), 0);
    }

    void itLeavesASceneThatIsClosed()
    {
        openMesh();
        pressKey();
        QCOMPARE(panel()->model()->rowCount(), 100);
        m_window->document().newScene();
        QVERIFY(panel()->list() == nullptr);
        m_window->document().close();
        QVERIFY(panel()->list() == nullptr);
    }

    void aNodeThatIsDeletedIsLeft()
    {
        openMesh();
        pressKey();
        clickRow(tree(), tree()->model()->index(0, 0, tree()->model()->index(0, 0)));
        const NxMField* const gone = &arm()->positions;
        QTest::keyClick(tree(), Qt::Key_Delete);
        QTRY_VERIFY(panel()->list() != gone);
        QTest::keyClick(tree(), Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(panel()->list(), gone);
        QCOMPARE(robot()->getChildren().size(), 3U);
    }

    void listsAndSingleValuesHaveTheirOwnHeights()
    {
        auto editor = std::make_unique<QDockWidget>(u"Editor"_s);
        auto* const content = new QWidget;
        auto* const layout = new QVBoxLayout(content);
        auto* const table = new QTableWidget(100, 1);
        table->setMinimumHeight(30);
        layout->addWidget(table);
        editor->setWidget(content);
        OrvShell::getInstance()->addDockWidget(editor.get(), Qt::RightDockWidgetArea);
        editor->show();
        openMesh();
        const auto rowsInSight = [&] { return table->viewport()->height() / table->rowHeight(0); };
        QTRY_VERIFY2(rowsInSight() >= DockHeights::leastRows, qPrintable(QString::number(rowsInSight())));
        const auto choose = [&](int height) {
            auto* const fields = m_window->findChild<QDockWidget*>(u"fieldsDock"_s);
            const int both = fields->height() + editor->height();
            m_window->resizeDocks({fields, editor.get()}, {both - height, height}, Qt::Vertical);
            QTRY_COMPARE(editor->height(), height);
        };
        choose(350);
        m_session->services().selectField(&arm()->primitive);
        for (int pass = 0; pass < 3; ++pass) // until the heights for single values are applied
            QCoreApplication::processEvents();
        choose(150);
        m_session->services().selectField(&arm()->normals);
        QTRY_COMPARE(editor->height(), 350);
        m_session->services().selectField(&arm()->primitive);
        QTRY_COMPARE(editor->height(), 150);
        OrvShell::getInstance()->removeDockWidget(editor.get());
    }
};

QTEST_MAIN(TestListDock)
#include "tst_ListDock.moc"
