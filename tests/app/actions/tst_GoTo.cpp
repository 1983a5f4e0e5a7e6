#include "app/actions/PickerCase.h"

#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/view/SceneView.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"

#include <QAbstractItemModelTester>
#include <QDockWidget>

/// The picker of places to go to, by real keys.
class TestGoTo : public PickerCase {
    Q_OBJECT

private:
    [[nodiscard]] OrvServices& services() { return m_session->services(); }
    NxNode* node(const char* path) { return NxScenePath::find(m_window->document().scene(), path).node(); }
    void openGoTo()
    {
        activate();
        QTest::keyClick(m_window.get(), Qt::Key_P, Qt::ControlModifier);
        QVERIFY(popup() != nullptr);
    }
    /// Waits until the whole scene is searched.
    void goTo(const char* text, const char* first)
    {
        openGoTo();
        type(text);
        QTRY_COMPARE(textOf(0), QLatin1String(first));
        press(Qt::Key_Return);
        QCOMPARE(popup(), nullptr);
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        open(m_robot);
    }
    void cleanup()
    {
        close();
        endTool();
    }

    void returnGoesToANodeInTheTree()
    {
        table()->setFocus();
        goTo("rob/hnd", "hand");
        QCOMPARE(services().getSelectedNode(), node("/robot/hand"));
        QCOMPARE(m_window->findChild<SceneTreePanel*>()->selectedNode(), node("/robot/hand"));
        QTRY_COMPARE(QApplication::focusWidget(), tree());
    }

    void aFieldIsSelectedInTheTable()
    {
        goTo("sun.intens", "sun.intensity");
        QCOMPARE(services().getSelectedNode(), sun());
        QVERIFY(services().getSelectedField() != nullptr);
        QCOMPARE(services().getSelectedField(), sun()->getField("intensity"));
        QTRY_COMPARE(QApplication::focusWidget(), table());
    }

    void aClosedDockIsShown()
    {
        auto* const dock = m_window->findChild<QDockWidget*>(QStringLiteral("sceneDock"));
        dock->close();
        goTo("hand", "hand");
        QVERIFY(dock->isVisible());
    }

    void aCameraIsLookedThrough()
    {
        const QString file = filePath("camera.mrd");
        writeFile(file, "#mrd 1.0\nMesh \"front\" {}\nPerspectiveCamera \"front\" {\n  position = 1 2 30\n}\n");
        QCOMPARE(open(file), QString());
        openGoTo();
        type("front");
        const auto look = [this] {
            for (int i = 0; i < rows().rowCount(); ++i) {
                if (row(i)->detail.startsWith(QStringLiteral("Look through")))
                    return i;
            }
            return -1;
        };
        QTRY_VERIFY(look() > 0);
        while (list()->currentIndex().row() < look())
            press(Qt::Key_Down);
        press(Qt::Key_Return);
        auto* const view = m_window->findChild<SceneView*>();
        QTRY_COMPARE(view->viewpoint().position[2], 30.0);
    }

    void aRecentFileIsOpened()
    {
        const QString other = filePath("other arm.mrd");
        writeFile(other, "#mrd 1.0\nGroup \"lonely\" {}\n");
        QCOMPARE(open(other), QString());
        QCOMPARE(open(m_robot), QString());
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        openGoTo();
        type("otherarm");
        QTRY_COMPARE(textOf(0), QStringLiteral("other arm.mrd"));
        press(Qt::Key_Return);
        QTRY_COMPARE(settled.count(), 1);
        QVERIFY(node("/lonely") != nullptr);
    }

    void whatWasUsedComesFirstInTheNextRunToo()
    {
        goTo("hand", "hand");
        goTo("sun", "sun");
        openGoTo();
        QTRY_COMPARE(textOf(0), QStringLiteral("sun"));
        QTRY_COMPARE(textOf(1), QStringLiteral("hand"));
        close();
        makeWindow();
        open(m_robot);
        openGoTo();
        QTRY_COMPARE(textOf(0), QStringLiteral("sun"));
        QTRY_COMPARE(textOf(1), QStringLiteral("hand"));
    }

    void rowsFollowAChangeOfTheScene()
    {
        openGoTo();
        type("robot");
        QTRY_COMPARE(textOf(0), QStringLiteral("robot"));
        renameRobot("machine");
        QTRY_VERIFY(rowWith("robot") == nullptr);
        line()->clear();
        type("machine");
        QTRY_COMPARE(textOf(0), QStringLiteral("machine"));
        m_window->document().newScene();
        QTRY_VERIFY(popup() == nullptr);
    }

    void theModelIsAProperOne()
    {
        openGoTo();
        const QAbstractItemModelTester tester(list()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        type("a");
        QTRY_VERIFY(rows().rowCount() > 1);
        type("zzzzz");
        QTRY_COMPARE(rows().rowCount(), 0);
    }

    void theFirstOfManyNodesAreShownAtOnce()
    {
        QByteArray text = "#mrd 1.0\nGroup \"many\" {\n";
        for (int i = 0; i < 50'000; ++i)
            text += "Group \"part" + QByteArray::number(i) + "\" {}\n";
        text += "}\n";
        const QString file = filePath("many.mrd");
        writeFile(file, text);
        QCOMPARE(open(file), QString());
        openGoTo();
        type("part");
        QVERIFY(rows().rowCount() > 0); // before the event loop has run again
        type("49999");
        QTRY_COMPARE(textOf(0), QStringLiteral("part49999"));
        press(Qt::Key_Return);
        QCOMPARE(services().getSelectedNode(), node("/many/part49999"));
    }

    void withoutASceneThereAreFiles()
    {
        m_window->document().close();
        openGoTo();
        QTRY_COMPARE(textOf(0), QStringLiteral("robot.mrd"));
    }
};

QTEST_MAIN(TestGoTo)
#include "tst_GoTo.moc"
