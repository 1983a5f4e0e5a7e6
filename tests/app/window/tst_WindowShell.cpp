#include "orvane/app/base/ActionState.h"
#include "orvane/app/view/ViewMenu.h"
#include "orvane/app/window/WindowShell.h"

#include <QDockWidget>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>

class TestWindowShell : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QMainWindow>();
        m_window->setCentralWidget(new QWidget);
        m_window->resize(1000, 600);
        m_shell = std::make_unique<WindowShell>(m_window.get());
        m_dock = std::make_unique<QDockWidget>();
        m_dock->setWindowTitle(QStringLiteral("Field Editor"));
        m_dock->setWidget(new QWidget);
        m_dock->hide();
    }

    void cleanup()
    {
        m_dock.reset();
        m_shell.reset();
        m_window.reset();
    }

    void isTheShellWhileItLives()
    {
        QCOMPARE(OrvShell::getInstance(), m_shell.get());
        m_shell.reset();
        QCOMPARE(OrvShell::getInstance(), nullptr);
    }

    void addsADockWithoutShowingIt()
    {
        m_window->show();
        m_shell->addDockWidget(m_dock.get(), Qt::RightDockWidgetArea);
        QCOMPARE(m_window->dockWidgetArea(m_dock.get()), Qt::RightDockWidgetArea);
        QCOMPARE(m_dock->objectName(), QStringLiteral("Field Editor"));
        QVERIFY(m_dock->isHidden());
        m_dock->show();
        QTRY_VERIFY(m_dock->width() >= WindowShell::sideDockWidth);
    }

    void aDockThatJoinsOthersTakesTheirWidth()
    {
        QDockWidget other;
        other.setWidget(new QWidget);
        m_window->addDockWidget(Qt::RightDockWidgetArea, &other);
        m_window->show();
        constexpr int width = 250;
        m_window->resizeDocks({&other}, {width}, Qt::Horizontal);
        QTRY_COMPARE(other.width(), width);
        // The widget would like more than that, but can do with less.
        auto* row = new QWidget;
        auto* layout = new QHBoxLayout(row);
        for (int i = 0; i < 5; ++i)
            layout->addWidget(new QLineEdit);
        m_dock->setWidget(row);
        QVERIFY(row->sizeHint().width() > width);
        m_shell->addDockWidget(m_dock.get(), Qt::RightDockWidgetArea);
        m_dock->show();
        // The layout takes it in, and then its size is set.
        for (int pass = 0; pass < 3; ++pass)
            QCoreApplication::processEvents();
        QCOMPARE(m_dock->width(), width);
        QCOMPARE(other.width(), width);
    }

    void leavesARemovedDockWithoutParent()
    {
        m_shell->addDockWidget(m_dock.get(), Qt::RightDockWidgetArea);
        m_shell->removeDockWidget(m_dock.get());
        QCOMPARE(m_dock->parent(), nullptr);
        QVERIFY(m_shell->docks().isEmpty());
        m_shell->removeDockWidget(m_dock.get());
        m_shell->removeDockWidget(nullptr);
    }

    void putsADockBackWhereItWas()
    {
        m_shell->addDockWidget(m_dock.get(), Qt::RightDockWidgetArea);
        m_window->addDockWidget(Qt::BottomDockWidgetArea, m_dock.get());
        m_shell->removeDockWidget(m_dock.get());
        m_shell->addDockWidget(m_dock.get(), Qt::RightDockWidgetArea);
        QCOMPARE(m_window->dockWidgetArea(m_dock.get()), Qt::BottomDockWidgetArea);
    }

    void leavesARemovedToolBarWithoutParent()
    {
        QToolBar toolBar(QStringLiteral("Profile Selector"));
        m_shell->addToolBar(&toolBar, Qt::TopToolBarArea);
        QCOMPARE(m_window->toolBarArea(&toolBar), Qt::TopToolBarArea);
        QCOMPARE(toolBar.objectName(), QStringLiteral("Profile Selector"));
        m_shell->removeToolBar(&toolBar);
        QCOMPARE(toolBar.parent(), nullptr);
    }

    void forgetsADockThatDies()
    {
        m_shell->addDockWidget(m_dock.get(), Qt::RightDockWidgetArea);
        m_dock.reset();
        QVERIFY(m_shell->docks().isEmpty());
    }

    void listsDocksAndToolBarsInTheViewMenu()
    {
        ViewMenu view(m_window.get());
        connect(m_shell.get(), &WindowShell::contentChanged, &view, &ViewMenu::update);
        view.update();
        const QMenu& menu = *m_window->menuBar()->actions().front()->menu();
        const QMenu& docks = *menu.findChild<QMenu*>(QStringLiteral("docksMenu"));
        const QMenu& toolBars = *menu.findChild<QMenu*>(QStringLiteral("toolBarsMenu"));
        QVERIFY(!docks.menuAction()->isVisible());
        QVERIFY(!toolBars.menuAction()->isVisible());
        m_shell->addDockWidget(m_dock.get(), Qt::RightDockWidgetArea);
        QVERIFY(docks.actions().contains(m_dock->toggleViewAction()));
        QVERIFY(menu.actions().contains(docks.menuAction()));
        QVERIFY(docks.menuAction()->isVisible());
        QToolBar toolBar;
        m_shell->addToolBar(&toolBar, Qt::TopToolBarArea);
        QVERIFY(toolBars.actions().contains(toolBar.toggleViewAction()));
        QVERIFY(menu.actions().contains(toolBars.menuAction()));
        m_shell->removeToolBar(&toolBar);
        QVERIFY(toolBars.isEmpty());
        m_shell->removeDockWidget(m_dock.get());
        QVERIFY(docks.isEmpty());
    }

    void anEmptyDockOfAnExtensionCantBeShown()
    {
        ViewMenu view(m_window.get());
        connect(m_shell.get(), &WindowShell::contentChanged, &view, &ViewMenu::update);
        QDockWidget own(m_window.get());
        m_window->addDockWidget(Qt::LeftDockWidgetArea, &own);
        delete m_dock->widget();
        m_shell->addDockWidget(m_dock.get(), Qt::RightDockWidgetArea);
        const QAction* const action = m_dock->toggleViewAction();
        QVERIFY(!action->isEnabled());
        QCOMPARE(orvane::reasonOf(*action), QStringLiteral("It has nothing to show for what is selected."));
        QVERIFY(own.toggleViewAction()->isEnabled());
        m_window->show();
        m_dock->setWidget(new QLineEdit);
        m_dock->show();
        QVERIFY(action->isEnabled());
        QCOMPARE(orvane::reasonOf(*action), QString());
        m_dock->setWidget(nullptr);
        m_dock->hide();
        QVERIFY(!action->isEnabled());
    }

private:
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<WindowShell> m_shell;
    std::unique_ptr<QDockWidget> m_dock;
};

QTEST_MAIN(TestWindowShell)
#include "tst_WindowShell.moc"
