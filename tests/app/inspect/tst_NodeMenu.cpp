#include "app/window/RobotWindowCase.h"

#include "orvane/app/inspect/InspectorDocks.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QStatusBar>

/// The context menu of nodes in tree and view, by real events.
class TestNodeMenu : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    NxNode* node(const char* path) { return NxScenePath::find(m_window->document().scene(), path).node(); }
    QPoint placeOf(const char* path)
    {
        const QModelIndex index = m_window->findChild<SceneTreePanel*>()->model()->indexOfPath(
            NxScenePath::find(m_window->document().scene(), path).nodes);
        tree()->scrollTo(index);
        return tree()->visualRect(index).center();
    }
    /// As the window system does it: the press, then the request for a menu.
    void rightClickTree(const QPoint& place)
    {
        QTest::mouseClick(tree()->viewport(), Qt::RightButton, Qt::NoModifier, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(tree()->viewport(), &event);
    }
    void pressMenuKey(QWidget* widget)
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(3, 3), widget->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(widget, &event);
    }
    static QMenu* menu()
    {
        auto* const popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        return popup != nullptr && popup->objectName() == QStringLiteral("nodeMenu") ? popup : nullptr;
    }
    static QStringList texts()
    {
        QStringList result;
        for (const QAction* const action : menu() != nullptr ? menu()->actions() : QList<QAction*>()) {
            if (!action->isSeparator())
                result.append(action->text().remove(u'&'));
        }
        return result;
    }
    static void choose(const char* text)
    {
        QVERIFY(menu() != nullptr);
        for (QAction* const action : menu()->actions()) {
            if (action->text().remove(u'&') == QLatin1String(text)) {
                QTest::mouseClick(menu(), Qt::LeftButton, Qt::NoModifier, menu()->actionGeometry(action).center());
                return;
            }
        }
        QFAIL(text);
    }
    static void closeMenu()
    {
        if (menu() != nullptr)
            menu()->close();
    }
    static QString copied() { return QGuiApplication::clipboard()->text(); }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        open(m_robot);
        tree()->expandAll();
    }
    void cleanup()
    {
        closeMenu();
        endTool();
    }

    void aRightClickInTheTreeIsAboutTheNodeUnderIt()
    {
        rightClickTree(placeOf("/robot/hand"));
        QCOMPARE(services().getSelectedNode(), node("/robot/hand"));
        QCOMPARE(texts(),
            QStringList(
                {QStringLiteral("Rename Node"), QStringLiteral("Cut"), QStringLiteral("Copy"), QStringLiteral("Paste"),
                    QStringLiteral("Paste as Shared"), QStringLiteral("Add Node…"), QStringLiteral("Duplicate"),
                    QStringLiteral("Delete Node"), QStringLiteral("Group"), QStringLiteral("Ungroup"),
                    QStringLiteral("Make Own Copy"), QStringLiteral("Move Up"), QStringLiteral("Move Down"),
                    QStringLiteral("Move Out of Group"), QStringLiteral("Move into Group Above"),
                    QStringLiteral("Keep Place"), QStringLiteral("Isolate"), QStringLiteral("Hide"),
                    QStringLiteral("Favorite Node"), QStringLiteral("Copy Path"), QStringLiteral("Copy All Fields"),
                    QStringLiteral("Paste All Fields"), QStringLiteral("Lock Inspector on This"),
                    QStringLiteral("New Inspector"), QStringLiteral("Frame Selection"), QStringLiteral("Frame All")}));
    }

    void theGroundHasAMenuOfItsOwn()
    {
        rightClickTree(QPoint(20, tree()->viewport()->height() - 5));
        QCOMPARE(services().getSelectedNode(), nullptr);
        QCOMPARE(texts().mid(0, 3),
            QStringList({QStringLiteral("Cameras"), QStringLiteral("Frame All"), QStringLiteral("Frame Selection")}));
        QVERIFY(!texts().contains(QStringLiteral("Delete Node")));
    }

    void theMenuKeyIsAboutTheSelectedNode()
    {
        clickRow(tree(), tree()->indexAt(placeOf("/sun")));
        pressMenuKey(tree());
        QVERIFY(texts().contains(QStringLiteral("Copy Path")));
        QCOMPARE(services().getSelectedNode(), sun());
        closeMenu();
        tree()->clearSelection();
        pressMenuKey(tree());
        QVERIFY(!texts().contains(QStringLiteral("Copy Path")));
    }

    void theViewHasTheSameMenu()
    {
        auto* const view = m_window->findChild<SceneView*>();
        clickRow(tree(), tree()->indexAt(placeOf("/sun")));
        pressMenuKey(view);
        QVERIFY(texts().contains(QStringLiteral("Frame Selection")));
        QCOMPARE(services().getSelectedNode(), sun());
        closeMenu();
        // The meshes of this scene have no positions, so any place is ground.
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(30, 30), view->mapToGlobal(QPoint(30, 30)));
        QApplication::sendEvent(view, &event);
        QCOMPARE(services().getSelectedNode(), nullptr);
        QCOMPARE(texts().mid(0, 3),
            QStringList({QStringLiteral("Cameras"), QStringLiteral("Frame All"), QStringLiteral("Frame Selection")}));
        QVERIFY(!texts().contains(QStringLiteral("Delete Node")));
    }

    void pathAndFieldsAreCopied()
    {
        rightClickTree(placeOf("/robot/hand"));
        choose("Copy Path");
        QCOMPARE(copied(), QStringLiteral("/robot/hand"));
        rightClickTree(placeOf("/sun"));
        choose("Copy All Fields");
        QVERIFY2(copied().contains(QStringLiteral("intensity = 1\n")), qPrintable(copied()));
    }

    void fieldsArePastedAsOneStep()
    {
        writeFile(
            m_robot, QByteArray(AppScenes::robotText) + "PointLight \"lamp\" {\n  intensity = 0.25\n  on = false\n}\n");
        QCOMPARE(open(m_robot), QString());
        rightClickTree(placeOf("/lamp"));
        choose("Copy All Fields");
        rightClickTree(placeOf("/sun"));
        choose("Paste All Fields");
        QVERIFY(sun()->getField("intensity")->isSame(*node("/lamp")->getField("intensity")));
        QVERIFY(sun()->getField("on")->isSame(*node("/lamp")->getField("on")));
        services().undo();
        QVERIFY(sun()->getField("intensity")->isDefault());
        QVERIFY(sun()->getField("on")->isDefault());
        QVERIFY(!services().canUndo());
    }

    void whatCantBeDoneIsSaid()
    {
        rightClickTree(placeOf("/robot"));
        choose("Copy All Fields");
        QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("robot has no fields to copy."));
        QGuiApplication::clipboard()->setText(QStringLiteral("no fields"));
        rightClickTree(placeOf("/sun"));
        choose("Paste All Fields");
        QVERIFY(m_window->statusBar()->currentMessage() != QStringLiteral("robot has no fields to copy."));
        QVERIFY(!m_window->statusBar()->currentMessage().isEmpty());
        QVERIFY(!services().canUndo());
    }

    void aCameraIsLookedThrough()
    {
        writeFile(
            m_robot, QByteArray(AppScenes::robotText) + "PerspectiveCamera \"front\" {\n  position = 1 2 30\n}\n");
        QCOMPARE(open(m_robot), QString());
        rightClickTree(placeOf("/sun"));
        QVERIFY(!texts().contains(QStringLiteral("Look Through Camera")));
        closeMenu();
        rightClickTree(placeOf("/front"));
        choose("Look Through Camera");
        QTRY_COMPARE(m_window->findChild<SceneView*>()->viewpoint().position[2], 30.0);
    }

    void theKeysOfTheMenuWorkInTheTree()
    {
        clickRow(tree(), tree()->indexAt(placeOf("/robot/hand")));
        QTest::keyClick(tree(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(copied(), QStringLiteral("/robot/hand"));
    }

    void shiftF10OpensTheMenu()
    {
        clickRow(tree(), tree()->indexAt(placeOf("/sun")));
        QTest::keyClick(tree(), Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(texts().contains(QStringLiteral("Copy Path")));
    }

    void nodesAreDeletedAndRenamed()
    {
        rightClickTree(placeOf("/robot/arm"));
        choose("Delete Node");
        QTRY_COMPARE(robot()->getNumChildren(), 2);
        rightClickTree(placeOf("/sun"));
        choose("Rename Node");
        QTRY_VERIFY(tree()->findChild<QLineEdit*>() != nullptr);
    }

    void inspectorsAreLockedAndOpened()
    {
        rightClickTree(placeOf("/robot/arm"));
        choose("Lock Inspector on This");
        auto* const lock = m_window->findChild<QAction*>(QStringLiteral("inspector.lock"));
        QVERIFY(lock->isChecked());
        rightClickTree(placeOf("/sun"));
        QCOMPARE(services().getSelectedNode(), node("/robot/arm"));
        choose("Lock Inspector on This");
        QVERIFY(lock->isChecked());
        QCOMPARE(services().getSelectedNode(), sun());
        rightClickTree(placeOf("/robot/hand"));
        choose("New Inspector");
        QCOMPARE(m_window->findChild<InspectorDocks*>()->docks().size(), 1);
        QCOMPARE(services().getSelectedNode(), sun());
    }

    void withoutASceneThereIsNone()
    {
        QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(!m_window->document().isOpen());
        pressMenuKey(tree());
        QVERIFY(menu() == nullptr);
    }
};

QTEST_MAIN(TestNodeMenu)
#include "tst_NodeMenu.moc"
