#include "app/window/RobotWindowCase.h"

#include "orvane/app/inspect/FavoriteNodes.h"

#include "meridane/scene/file/NxScenePath.h"

#include <QAction>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

/// Favorite nodes in the window, by real events.
class TestFavoriteNodes : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    NxNode* node(const char* path) { return NxScenePath::find(m_window->document().scene(), path).node(); }
    QModelIndex index(const char* path)
    {
        return m_window->findChild<SceneTreePanel*>()->model()->indexOfPath(
            NxScenePath::find(m_window->document().scene(), path).nodes);
    }
    void clickNode(const char* path) { clickRow(tree(), index(path)); }
    void pressStar() { QTest::keyClick(m_window.get(), Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier); }
    void mark(const char* path)
    {
        clickNode(path);
        pressStar();
        QVERIFY2(favorites().contains(node(path)), path);
    }
    FavoriteNodes& favorites() { return *m_window->findChild<FavoriteNodes*>(); }
    QAction* star() { return m_window->findChild<QAction*>(QStringLiteral("node.favorite")); }
    QMenu* list() { return m_window->findChild<QMenu*>(QStringLiteral("favoriteNodes")); }
    QStringList listed()
    {
        list()->popup(m_window->mapToGlobal(QPoint(30, 30)));
        QStringList result;
        for (const QAction* const action : list()->actions())
            result.append(action->text());
        list()->close();
        return result;
    }
    /// The picture of a row of the tree.
    QImage rowOf(const char* path) { return tree()->viewport()->grab(tree()->visualRect(index(path))).toImage(); }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        open(m_robot);
        tree()->expandAll();
    }
    void cleanup() { endTool(); }

    void theKeyMarksAndUnmarks()
    {
        QVERIFY(!star()->isEnabled());
        clickNode("/robot/arm");
        QVERIFY(star()->isEnabled());
        clickNode("/sun");
        const QImage before = rowOf("/robot/arm");
        mark("/robot/arm");
        QVERIFY(star()->isChecked());
        clickNode("/sun");
        QVERIFY(!star()->isChecked());
        QVERIFY(rowOf("/robot/arm") != before);
        clickNode("/robot/arm");
        pressStar();
        QVERIFY(!favorites().contains(node("/robot/arm")));
        clickNode("/sun");
        QCOMPARE(rowOf("/robot/arm"), before);
    }

    void theListGoesToEachOfThem()
    {
        QCOMPARE(listed(), QStringList(QStringLiteral("No favorites in this scene")));
        mark("/sun");
        mark("/robot/arm");
        QCOMPARE(listed(), QStringList({QStringLiteral("sun"), QStringLiteral("arm")}));
        auto* const button = m_window->findChild<QToolButton*>(QStringLiteral("favoriteButton"));
        QCOMPARE(button->menu(), list());
        list()->popup(m_window->mapToGlobal(QPoint(30, 30)));
        QTest::mouseClick(
            list(), Qt::LeftButton, Qt::NoModifier, list()->actionGeometry(list()->actions().front()).center());
        QCOMPARE(services().getSelectedNode(), sun());
    }

    void deletedOnesComeBackWithUndo()
    {
        mark("/sun");
        mark("/robot/arm");
        QTest::keyClick(tree(), Qt::Key_Delete);
        QTRY_COMPARE(listed(), QStringList({QStringLiteral("sun")}));
        services().undo();
        QTRY_COMPARE(listed(), QStringList({QStringLiteral("sun"), QStringLiteral("arm")}));
    }

    void theNextStartHasThem()
    {
        mark("/sun");
        mark("/robot/arm");
        m_window->close();
        makeWindow();
        open(m_robot);
        QCOMPARE(listed(), QStringList({QStringLiteral("sun"), QStringLiteral("arm")}));
        QVERIFY(favorites().contains(node("/robot/arm")));
    }

    void namesThatAreSavedAreKept()
    {
        mark("/robot/arm");
        renameRobot("android");
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(!m_window->document().isModified());
        open(m_robot);
        QVERIFY(favorites().contains(node("/android/arm")));
    }

    void namesThatAreNotSavedLeaveThem()
    {
        mark("/robot/arm");
        renameRobot("android");
        QVERIFY(favorites().contains(node("/android/arm")));
        services().undo();
        AppScenes::runSensors();
        QVERIFY(!m_window->document().isModified());
        open(m_robot);
        QVERIFY(favorites().contains(node("/robot/arm")));
    }

    void aReloadKeepsThemByTheirPaths()
    {
        mark("/robot/hand");
        writeFile(m_robot, QByteArray(AppScenes::robotText).replace("Group \"robot\"", "Transform \"robot\""));
        QTest::keyClick(m_window.get(), Qt::Key_F5);
        QTRY_VERIFY(node("/robot") != nullptr && QByteArray(node("/robot")->getClassName()) == "Transform");
        QTRY_VERIFY(favorites().contains(node("/robot/hand")));
    }

    void anotherSceneHasItsOwn()
    {
        mark("/sun");
        const QString other = filePath("other.mrd");
        writeFile(other, AppScenes::robotText);
        open(other);
        QCOMPARE(listed(), QStringList(QStringLiteral("No favorites in this scene")));
        open(m_robot);
        QCOMPARE(listed(), QStringList(QStringLiteral("sun")));
    }

    void thereAreSomeAtMost()
    {
        std::string text = "#mrd 1.0\n";
        for (std::size_t i = 0; i <= FavoriteNodes::mostNodes; ++i)
            text += "Mesh {}\n";
        writeFile(m_robot, QByteArray::fromStdString(text));
        open(m_robot);
        for (std::size_t i = 0; i < FavoriteNodes::mostNodes; ++i) {
            NxNode* const mesh = m_window->document().scene()->getChild(static_cast<int>(i));
            QVERIFY(favorites().toggle(std::span(&mesh, 1)));
        }
        clickRow(tree(), tree()->model()->index(static_cast<int>(FavoriteNodes::mostNodes), 0));
        pressStar();
        QVERIFY(!star()->isChecked());
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("at most")));
    }

    void settingsThatMakeNoSenseMarkNothing()
    {
        QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(!m_window->document().isOpen());
        const QString entry = m_robot + QStringLiteral("\n/nowhere\nx\n\n/\n/sun\n/sun\n/sun.on");
        m_session->settings().setValue(QStringLiteral("scene/favorites"), QStringList{QString(), entry});
        open(m_robot);
        QCOMPARE(listed(), QStringList(QStringLiteral("sun")));
    }
};

QTEST_MAIN(TestFavoriteNodes)
#include "tst_FavoriteNodes.moc"
