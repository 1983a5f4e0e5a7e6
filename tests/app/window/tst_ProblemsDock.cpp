#include "app/window/RobotWindowCase.h"

#include "orvane/app/lists/ListPanel.h"
#include "orvane/app/lists/ListView.h"
#include "orvane/app/problems/ProblemModel.h"
#include "orvane/app/problems/ProblemPanel.h"
#include "orvane/app/window/ListDock.h"
#include "orvane/app/window/ProblemsDock.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/nodes/NxMesh.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>
#include <QToolButton>

namespace {

const char* const brokenText
    = "#mrd 1.0\n"
      "Group \"robot\" {\n"
      "  Mesh \"arm\" { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 1, 2, 0, 1, 9] }\n"
      "  Mesh \"hand\" { positions = [0 0 0, 1 0 0, 0 1 0]; normals = [0 0 2, 0 0 1, 0 0 0] }\n"
      "  Mesh \"leg\" { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [7, 1, 2, 0, 1, 2] }\n"
      "}\n"
      "Material \"paint\" {}\n";

} // namespace

/// The dock of the problems in the window.
class TestProblemsDock : public RobotWindowCase {
    Q_OBJECT

private:
    [[nodiscard]] ProblemsDock* dock() { return m_window->findChild<ProblemsDock*>(); }
    [[nodiscard]] ProblemPanel* panel() { return m_window->findChild<ProblemPanel*>(); }
    [[nodiscard]] ProblemModel* model() { return panel()->model(); }
    void pressKey() { QTest::keyClick(m_window.get(), Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier); }
    [[nodiscard]] QString shownText() { return panel()->findChild<QLabel*>(QStringLiteral("problemText"))->text(); }
    [[nodiscard]] QToolButton* button(const char* name)
    {
        return panel()->findChild<QToolButton*>(QLatin1String(name));
    }
    void click(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    /// The row with that identifier at that place.
    [[nodiscard]] int rowOf(const char* identifier, const char* place)
    {
        for (int row = 0; row < model()->rowCount(); ++row) {
            if (model()->index(row, ProblemModel::IdentifierColumn).data() == QLatin1String(identifier)
                && model()->index(row, ProblemModel::PlaceColumn).data() == QLatin1String(place))
                return row;
        }
        return -1;
    }
    void clickProblem(const char* identifier, const char* place)
    {
        const int row = rowOf(identifier, place);
        QVERIFY(row >= 0);
        clickRow(panel()->view(), model()->index(row, 0));
    }
    [[nodiscard]] QString sceneText()
    {
        return QString::fromStdString(NxSceneWriter::toText(m_window->document().scene()));
    }
    void openBroken()
    {
        writeFile(m_robot, brokenText);
        m_window->resize(1200, 800);
        pressKey();
        QCOMPARE(open(m_robot), QString());
        QTRY_COMPARE(model()->rowCount(), 5);
        QTRY_VERIFY(button("checkAgain")->isEnabled());
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
        QCOMPARE(shownText(), QStringLiteral("No scene is open."));
        pressKey();
        QVERIFY(!dock()->isVisible());
    }

    void theViewMenuListsItByItsName()
    {
        openBroken();
        Q_EMIT m_window->findChild<QMenu*>(QStringLiteral("viewMenu"))->aboutToShow();
        const auto* const menu = m_window->findChild<QMenu*>(QStringLiteral("docksMenu"));
        QVERIFY(menu->actions().contains(dock()->toggleViewAction()));
        QCOMPARE(dock()->toggleViewAction()->text(), QStringLiteral("Problems"));
        QTRY_COMPARE(dock()->windowTitle(), QStringLiteral("Problems (2 errors, 3 warnings)"));
    }

    void aSceneWithoutProblemsSaysSo()
    {
        writeFile(m_robot, "#mrd 1.0\nMesh { positions = [0 0 0, 1 0 0, 0 1 0] }\n");
        pressKey();
        QCOMPARE(open(m_robot), QString());
        QTRY_COMPARE(shownText(), QStringLiteral("No problems were found."));
        QCOMPARE(dock()->windowTitle(), QStringLiteral("Problems"));
        m_window->document().close();
        QCOMPARE(shownText(), QStringLiteral("No scene is open."));
    }

    void aClickSelectsNodeFieldAndRow()
    {
        openBroken();
        QList<int> rows;
        connect(dock(), &ProblemsDock::rowChosen, this, [&rows](NxField* /*list*/, int row) { rows += row; });
        clickProblem("normal-length", "/robot/hand.normals");
        auto* const hand = dynamic_cast<NxMesh*>(robot()->getChild(1));
        QCOMPARE(m_session->services().getSelectedNode(), hand);
        QCOMPARE(m_session->services().getSelectedField(), &hand->normals);
        QCOMPARE(rows, QList<int>{0});
        clickProblem("unused-material", "/paint");
        QCOMPARE(m_session->services().getSelectedNode(), m_window->document().scene()->getChild(1));
        QCOMPARE(rows, QList<int>{0});
        disconnect(dock(), &ProblemsDock::rowChosen, this, nullptr);
    }

    void aClickSelectsTheRowOfTheListThatIsShown()
    {
        openBroken();
        auto* const lists = m_window->findChild<ListDock*>();
        lists->show();
        m_window->addDockWidget(Qt::RightDockWidgetArea, lists);
        clickProblem("zero-normal", "/robot/hand.normals");
        auto* const panel = lists->findChild<ListPanel*>();
        QCOMPARE(panel->list(), &dynamic_cast<NxMesh*>(robot()->getChild(1))->normals);
        QCOMPARE(panel->view()->selectedPlaces(), (RowRuns{{2, 1}}));
        // Without the focus, which stays where the user is.
        QVERIFY(!panel->isAncestorOf(QApplication::focusWidget()));
    }

    void theKeyboardDoesTheSame()
    {
        openBroken();
        panel()->view()->setFocus();
        panel()->view()->setCurrentIndex(model()->index(rowOf("index-out-of-range", "/robot/arm.indices"), 0));
        m_session->services().selectNode(nullptr);
        QTest::keyClick(panel()->view(), Qt::Key_Return);
        QCOMPARE(m_session->services().getSelectedNode(), robot()->getChild(0));
        QTest::keyClick(panel()->view(), Qt::Key_Down);
        QVERIFY(m_session->services().getSelectedNode() != robot()->getChild(0));
    }

    void mendIsOneStepThatIsUndone()
    {
        openBroken();
        const QString before = sceneText();
        QVERIFY(!button("mendProblem")->isEnabled());
        clickProblem("index-out-of-range", "/robot/arm.indices");
        QTRY_VERIFY(button("mendProblem")->isEnabled());
        QCOMPARE(button("mendProblem")->toolTip(), QStringLiteral("Remove what they belong to"));
        click("mendProblem");
        auto* const arm = dynamic_cast<NxMesh*>(robot()->getChild(0));
        QCOMPARE(arm->indices.getNum(), 3);
        QTRY_COMPARE(rowOf("index-out-of-range", "/robot/arm.indices"), -1);
        QCOMPARE(model()->rowCount(), 4);
        QCOMPARE(m_session->services().undoText(), QStringLiteral("Mend: Remove what they belong to"));
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(sceneText(), before);
        QTRY_COMPARE(model()->rowCount(), 5);
        QVERIFY(!m_session->services().canUndo());
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(model()->rowCount(), 4);
    }

    void withoutExactUndoTheMendTakesItselfBack()
    {
        qputenv("ORVANE_UNDO", "commands");
        openBroken();
        const QString before = sceneText();
        QVERIFY(!m_session->services().isUndoExact());
        clickProblem("index-out-of-range", "/robot/arm.indices");
        QTRY_VERIFY(button("mendKind")->isEnabled());
        click("mendKind");
        QTRY_COMPARE(model()->rowCount(), 3);
        m_session->services().undo();
        QCOMPARE(sceneText(), before);
        QTRY_COMPARE(model()->rowCount(), 5);
        qunsetenv("ORVANE_UNDO");
    }

    void allOfAKindAreOneStep()
    {
        openBroken();
        const QString before = sceneText();
        clickProblem("index-out-of-range", "/robot/arm.indices");
        QTRY_VERIFY(button("mendKind")->isEnabled());
        click("mendKind");
        QTRY_COMPARE(model()->rowCount(), 3);
        QTRY_COMPARE(m_session->services().undoText(), QStringLiteral("Mend 2 problems"));
        m_session->services().undo();
        QCOMPARE(sceneText(), before);
        QTRY_COMPARE(model()->rowCount(), 5);
        // All that is left, by a selection of all rows.
        panel()->view()->setFocus();
        QTest::keyClick(panel()->view(), Qt::Key_A, Qt::ControlModifier);
        QTRY_VERIFY(button("mendProblem")->isEnabled());
        click("mendProblem");
        QTRY_COMPARE(shownText(), QStringLiteral("No problems were found."));
        m_session->services().undo();
        QCOMPARE(sceneText(), before);
    }

    void editsAreFollowed()
    {
        openBroken();
        auto* const arm = dynamic_cast<NxMesh*>(robot()->getChild(0));
        arm->indices.set("[0, 1, 2]");
        QTRY_COMPARE(model()->rowCount(), 4);
        arm->indices.set("[0, 1, 2, 0, 0, 0]");
        QTRY_VERIFY(rowOf("degenerate-faces", "/robot/arm.indices") >= 0);
        m_session->services().undo();
        QTRY_COMPARE(rowOf("degenerate-faces", "/robot/arm.indices"), -1);
        QCOMPARE(model()->rowCount(), 4);
        m_session->services().undo();
        QTRY_VERIFY(rowOf("index-out-of-range", "/robot/arm.indices") >= 0);
    }

    void severitiesAndWordsFilter()
    {
        openBroken();
        QCOMPARE(button("errorProblems")->text(), QStringLiteral("2"));
        QCOMPARE(button("errorProblems")->accessibleName(), QStringLiteral("2 errors"));
        click("warningProblems");
        QTRY_COMPARE(model()->rowCount(), 2);
        click("errorProblems");
        QTRY_COMPARE(shownText(), QStringLiteral("The filter hides all problems."));
        click("errorProblems");
        click("warningProblems");
        auto* const line = panel()->findChild<QLineEdit*>(QStringLiteral("problemFilter"));
        QTest::keyClicks(line, QStringLiteral("hand length"));
        QTRY_COMPARE(model()->rowCount(), 2);
        line->clear();
        QTRY_COMPARE(model()->rowCount(), 5);
    }

    void rowsAreCopiedAsText()
    {
        openBroken();
        clickProblem("unused-material", "/paint");
        QTest::keyClick(panel()->view(), Qt::Key_C, Qt::ControlModifier);
        QTRY_COMPARE(QGuiApplication::clipboard()->text().trimmed(),
            QStringLiteral(
                "/paint\twarning\tunused-material\tNo mesh follows this material in its group, so it applies to "
                "nothing."));
    }

    void missingFilesAreFound()
    {
        writeFile(m_robot,
            "#mrd 1.0\nTexture \"t\" { filePath = \"wood.png\" }\n"
            "Texture \"u\" { filePath = \"/nowhere/wood.png\" }\nMesh { positions = [0 0 0, 1 0 0, 0 1 0] }\n");
        pressKey();
        QCOMPARE(open(m_robot), QString());
        QTRY_VERIFY(rowOf("missing-file", "/t.filePath") >= 0);
        QVERIFY(rowOf("unreadable-file", "/u.filePath") >= 0);
        writeFile(filePath("wood.png"), "x");
        QTRY_VERIFY(button("checkAgain")->isEnabled());
        click("checkAgain");
        QTRY_COMPARE(rowOf("missing-file", "/t.filePath"), -1);
        QTRY_VERIFY(rowOf("unreadable-file", "/u.filePath") >= 0);
    }

    void aHiddenDockChecksNothing()
    {
        openBroken();
        pressKey();
        QVERIFY(!dock()->isVisible());
        QCOMPARE(model()->rowCount(), 0);
        robot()->removeChild(0);
        pressKey();
        QTRY_COMPARE(model()->rowCount(), 4);
    }

    void scenesComeAndGo()
    {
        openBroken();
        m_window->document().newScene();
        QTRY_COMPARE(shownText(), QStringLiteral("No problems were found."));
        QCOMPARE(open(m_robot), QString());
        QTRY_COMPARE(model()->rowCount(), 5);
        m_window->document().close();
        QCOMPARE(model()->rowCount(), 0);
        QCOMPARE(shownText(), QStringLiteral("No scene is open."));
    }
};

QTEST_MAIN(TestProblemsDock)
#include "tst_ProblemsDock.moc"
