#include "app/window/RobotWindowCase.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/inspect/FieldTitleBar.h"

#include "meridane/scene/file/NxScenePath.h"

#include <QDockWidget>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

/// The title bar over the field editor of the default plug-in, by real events.
class TestFieldTitleBars : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    NxNode* node(const char* path) { return NxScenePath::find(m_window->document().scene(), path).node(); }
    void select(const char* path) { QVERIFY(m_window->selectPath(QLatin1String(path))); }
    QDockWidget* dock(const char* title)
    {
        for (auto* candidate : m_window->findChildren<QDockWidget*>()) {
            if (candidate->windowTitle() == QLatin1String(title))
                return candidate;
        }
        return nullptr;
    }
    QDockWidget* editorDock() { return dock("Field Editor"); }
    FieldTitleBar* bar() { return qobject_cast<FieldTitleBar*>(editorDock()->titleBarWidget()); }
    QString path() { return bar() != nullptr ? bar()->path() : QStringLiteral("no bar"); }
    void clickButton(const char* name)
    {
        QTest::mouseClick(bar()->findChild<QToolButton*>(QLatin1String(name)), Qt::LeftButton);
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        m_session->loadPlugins(OrvPluginsManager::findPlugins(orvane::pluginFolders()));
        m_session->loadProfiles({QStringLiteral(ORVANE_PROFILES)});
        QVERIFY(m_session->activateProfile({}));
        m_window->resize(1200, 800);
        open(m_robot);
        QVERIFY(editorDock() != nullptr);
    }
    void cleanup() { endTool(); }

    void itShowsThePathOfTheField()
    {
        select("/sun.intensity");
        QTRY_COMPARE(path(), QStringLiteral("/sun.intensity"));
        QCOMPARE(editorDock()->windowTitle(), QStringLiteral("Field Editor"));
        QVERIFY(bar()->toolTip().contains(QStringLiteral("/sun.intensity")));
        QCOMPARE(bar()->accessibleName(), QStringLiteral("Field Editor: /sun.intensity"));
        select("/robot/arm.indices");
        QTRY_COMPARE(path(), QStringLiteral("/robot/arm.indices"));
        // Docks that show no field have their usual title bars.
        QCOMPARE(dock("Fields")->titleBarWidget(), nullptr);
        QCOMPARE(dock("Console")->titleBarWidget(), nullptr);
    }

    void itFollowsTheNameOfTheNode()
    {
        select("/robot/hand.indices");
        QTRY_COMPARE(path(), QStringLiteral("/robot/hand.indices"));
        renameRobot("tin man");
        QTRY_COMPARE(path(), QStringLiteral("/tin man/hand.indices"));
        services().undo();
        QTRY_COMPARE(path(), QStringLiteral("/robot/hand.indices"));
    }

    void itStaysOnTheLockedField()
    {
        select("/sun.intensity");
        QTRY_COMPARE(path(), QStringLiteral("/sun.intensity"));
        QTest::keyClick(m_window.get(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_VERIFY(bar()->toolTip().contains(QStringLiteral("lock is on")));
        select("/robot/arm");
        QTest::qWait(0);
        QCOMPARE(path(), QStringLiteral("/sun.intensity"));
        QTest::keyClick(m_window.get(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(path(), QString());
        QVERIFY(!bar()->toolTip().contains(QStringLiteral("lock is on")));
    }

    void withoutASceneItShowsTheTitle()
    {
        select("/sun.intensity");
        QTRY_COMPARE(path(), QStringLiteral("/sun.intensity"));
        open(m_robot);
        QCOMPARE(path(), QString());
        QCOMPARE(bar()->accessibleName(), QStringLiteral("Field Editor"));
    }

    void aLongPathKeepsItsEnds()
    {
        renameRobot(QByteArray(300, 'n').constData());
        select((QByteArray("/") + QByteArray(300, 'n') + "/hand.indices").constData());
        QTRY_VERIFY(path().endsWith(QStringLiteral("/hand.indices")));
        QVERIFY(bar()->toolTip().contains(QStringLiteral("/hand.indices")));
        // It takes no width that the dock doesn't have.
        QVERIFY(bar()->minimumSizeHint().width() < 200);
        QVERIFY(bar()->sizeHint().width() < 400);
    }

    void itsButtonsFloatAndClose()
    {
        select("/sun.intensity");
        QTRY_VERIFY(bar() != nullptr);
        QVERIFY(editorDock()->isVisible());
        clickButton("dockFloatButton");
        QVERIFY(editorDock()->isFloating());
        clickButton("dockFloatButton");
        QVERIFY(!editorDock()->isFloating());
        clickButton("dockCloseButton");
        QVERIFY(!editorDock()->isVisible());
    }

    void buttonsThatTheDockForbidsAreHidden()
    {
        select("/sun.intensity");
        QTRY_VERIFY(bar() != nullptr);
        editorDock()->setFeatures(QDockWidget::DockWidgetMovable);
        QVERIFY(!bar()->findChild<QToolButton*>(QStringLiteral("dockFloatButton"))->isVisible());
        QVERIFY(!bar()->findChild<QToolButton*>(QStringLiteral("dockCloseButton"))->isVisible());
    }

    void aDoubleClickFloatsTheDock()
    {
        select("/sun.intensity");
        QTRY_VERIFY(bar() != nullptr);
        QTest::mouseDClick(bar(), Qt::LeftButton, Qt::NoModifier, QPoint(20, bar()->height() / 2));
        QVERIFY(editorDock()->isFloating());
        QTest::mouseDClick(bar(), Qt::LeftButton, Qt::NoModifier, QPoint(20, bar()->height() / 2));
        QVERIFY(!editorDock()->isFloating());
    }

    void draggingItTakesTheDockAway()
    {
        select("/sun.intensity");
        QTRY_VERIFY(bar() != nullptr);
        const QPoint start(30, bar()->height() / 2);
        const auto move = [this](const QPoint& place) {
            QMouseEvent event(QEvent::MouseMove, QPointF(place), QPointF(bar()->mapToGlobal(place)), Qt::NoButton,
                Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(bar(), &event);
        };
        QTest::mousePress(bar(), Qt::LeftButton, Qt::NoModifier, start);
        move(start + QPoint(-40, -10));
        move(start + QPoint(-300, -100));
        QTRY_VERIFY(editorDock()->isFloating());
        QTest::mouseRelease(bar(), Qt::LeftButton, Qt::NoModifier, start);
    }

    void theContextMenuIsThatOfTheWindow()
    {
        select("/sun.intensity");
        QTRY_VERIFY(bar() != nullptr);
        bool hasShown = false;
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [&] {
            if (auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                hasShown = menu->actions().contains(editorDock()->toggleViewAction());
                menu->close();
            }
        });
        closer.start(10);
        QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 5}, bar()->mapToGlobal(QPoint(20, 5)));
        QApplication::sendEvent(bar(), &event);
        QTRY_VERIFY(hasShown);
    }

    void theDockLeavesWithItsUsualTitleBar()
    {
        select("/sun.intensity");
        QTRY_VERIFY(bar() != nullptr);
        QPointer<QDockWidget> left(editorDock());
        QVERIFY(m_session->activateProfile(QStringLiteral("Text only")));
        QVERIFY(left.isNull() || left->parentWidget() == m_window.get() || left->titleBarWidget() == nullptr);
        select("/robot/arm.indices");
        QTRY_COMPARE(path(), QStringLiteral("/robot/arm.indices"));
    }
};

QTEST_MAIN(TestFieldTitleBars)
#include "tst_FieldTitleBars.moc"
