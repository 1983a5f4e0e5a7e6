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
    static QMenu* subMenu(const char* name) { return menu()->findChild<QMenu*>(QLatin1String(name)); }
    static QStringList texts() { return texts(menu()); }
    static QStringList texts(const QMenu* menu)
    {
        QStringList result;
        for (const QAction* const action : menu != nullptr ? menu->actions() : QList<QAction*>()) {
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
    /// Opens a menu in the menu by a key, and chooses in it.
    static void choose(const char* name, const char* text)
    {
        QVERIFY(menu() != nullptr);
        QMenu* const inner = subMenu(name);
        QVERIFY2(inner != nullptr, name);
        menu()->setActiveAction(inner->menuAction());
        if (!inner->isVisible())
            QTest::keyClick(menu(), Qt::Key_Right);
        QVERIFY(inner->isVisible());
        for (const QAction* const action : inner->actions()) {
            if (action->text().remove(u'&') == QLatin1String(text)) {
                QTest::mouseClick(inner, Qt::LeftButton, Qt::NoModifier,
                    inner->actionGeometry(const_cast<QAction*>(action)).center());
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
        QGuiApplication::clipboard()->clear();
        rightClickTree(placeOf("/robot/hand"));
        QCOMPARE(services().getSelectedNode(), node("/robot/hand"));
        QCOMPARE(texts(),
            QStringList({QStringLiteral("Rename Node"), QStringLiteral("Cut"), QStringLiteral("Copy"),
                QStringLiteral("Add Node…"), QStringLiteral("Duplicate"), QStringLiteral("Delete Node"),
                QStringLiteral("Group"), QStringLiteral("Move"), QStringLiteral("Isolate"), QStringLiteral("Hide"),
                QStringLiteral("Favorite Node"), QStringLiteral("Find Nodes of This Class"),
                QStringLiteral("Copy Path"), QStringLiteral("Fields as Text"), QStringLiteral("Lock Inspector on This"),
                QStringLiteral("New Inspector"), QStringLiteral("Frame Selection")}));
    }

    /// What would change nothing isn't there, and nothing is greyed out.
    void theMenuHasJustWhatApplies()
    {
        writeFile(m_robot,
            "#mrd 1.0\n"
            "Group \"one\" { Mesh \"below\" { } }\n"
            "Group \"two\" { PointLight \"last\" { } }\n"
            "use \"two\"\n");
        QCOMPARE(open(m_robot), QString());
        tree()->expandAll();
        QGuiApplication::clipboard()->clear();
        const QString ungroup = QStringLiteral("Ungroup");
        const QString own = QStringLiteral("Make Own Copy");
        rightClickTree(placeOf("/one"));
        QVERIFY(texts().contains(ungroup));
        QVERIFY(!texts().contains(own));
        QVERIFY(!texts().contains(QStringLiteral("Paste")));
        QCOMPARE(
            texts(subMenu("nodeMoveMenu")), QStringList({QStringLiteral("Move Down"), QStringLiteral("Keep Place")}));
        for (const QAction* const action : menu()->actions())
            QVERIFY2(action->isEnabled(), qPrintable(action->text()));
        closeMenu();
        rightClickTree(placeOf("/one/below"));
        QVERIFY(!texts().contains(ungroup));
        QCOMPARE(texts(subMenu("nodeMoveMenu")),
            QStringList({QStringLiteral("Move Out of Group"), QStringLiteral("Keep Place")}));
        closeMenu();
        rightClickTree(placeOf("/Group[1]"));
        QVERIFY2(texts().contains(own), qPrintable(texts().join(u',')));
        QCOMPARE(texts(subMenu("nodeMoveMenu")),
            QStringList({QStringLiteral("Move Up"), QStringLiteral("Move Down"),
                QStringLiteral("Move into Group Above"), QStringLiteral("Keep Place")}));
        choose("Copy");
        rightClickTree(placeOf("/one"));
        QVERIFY(texts().contains(QStringLiteral("Paste")));
        QVERIFY(texts().contains(QStringLiteral("Paste as Shared")));
    }

    void nodesOfAClassAreFound()
    {
        rightClickTree(placeOf("/robot/hand"));
        choose("Find Nodes of This Class");
        auto* const line = m_window->findChild<QLineEdit*>(QStringLiteral("findEdit"));
        QCOMPARE(line->text(), QStringLiteral("t:Mesh"));
        QVERIFY(line->hasFocus());
        line->clear();
        clickRow(tree(), tree()->indexAt(placeOf("/sun")));
        QTest::keyClick(tree(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(line->text(), QStringLiteral("t:PointLight"));
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
        choose("nodeFieldsMenu", "Copy All Fields");
        QVERIFY2(copied().contains(QStringLiteral("intensity = 1\n")), qPrintable(copied()));
    }

    void fieldsArePastedAsOneStep()
    {
        writeFile(
            m_robot, QByteArray(AppScenes::robotText) + "PointLight \"lamp\" {\n  intensity = 0.25\n  on = false\n}\n");
        QCOMPARE(open(m_robot), QString());
        rightClickTree(placeOf("/lamp"));
        choose("nodeFieldsMenu", "Copy All Fields");
        rightClickTree(placeOf("/sun"));
        choose("nodeFieldsMenu", "Paste All Fields");
        QVERIFY(sun()->getField("intensity")->isSame(*node("/lamp")->getField("intensity")));
        QVERIFY(sun()->getField("on")->isSame(*node("/lamp")->getField("on")));
        services().undo();
        QVERIFY(sun()->getField("intensity")->isDefault());
        QVERIFY(sun()->getField("on")->isDefault());
        QVERIFY(!services().canUndo());
    }

    void whatCantBeDoneIsSaid()
    {
        clickRow(tree(), tree()->indexAt(placeOf("/robot")));
        QTest::keyClick(tree(), Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("robot has no fields to copy."));
        QGuiApplication::clipboard()->setText(QStringLiteral("no fields"));
        rightClickTree(placeOf("/sun"));
        choose("nodeFieldsMenu", "Paste All Fields");
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
