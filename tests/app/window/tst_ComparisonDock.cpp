#include "app/window/RobotWindowCase.h"

#include "orvane/app/compare/DifferenceModel.h"
#include "orvane/app/compare/DifferencePanel.h"
#include "orvane/app/compare/SceneComparer.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/scene/SceneDisposal.h"
#include "orvane/app/window/ComparisonDock.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxField.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>

/// File > Compare With in the window.
class TestComparisonDock : public RobotWindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        m_other = filePath("other.mrd");
        writeFile(m_other,
            "#mrd 1.0\nGroup \"robot\" {\n  Mesh \"arm\" { positions = [1 2 3] }\n  Mesh {}\n  Switch \"new\" {} }\n"
            "PointLight \"sun\" { ignored intensity = 1 }\n");
    }
    void cleanup() { endTool(); }

    void theActionNeedsAScene()
    {
        QVERIFY(!action()->isEnabled());
        open(m_robot);
        QVERIFY(action()->isEnabled());
        QVERIFY(dock() == nullptr);
    }

    void aFileIsChosenWithTheKeyboard()
    {
        open(m_robot);
        QTest::keyClick(m_window.get(), Qt::Key_D, Qt::ControlModifier | Qt::AltModifier);
        auto* const dialog = m_window->findChild<QFileDialog*>(QStringLiteral("compareDialog"));
        QVERIFY(dialog != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(dialog, testPatience));
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(m_other);
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open), Qt::LeftButton);
        QTRY_VERIFY(model() != nullptr && model()->rowCount() > 0);
        QVERIFY(dock()->isVisible());
        QCOMPARE(paths(),
            QStringList({QStringLiteral("/robot/new added"), QStringLiteral("/robot/arm positions"),
                QStringLiteral("/robot/hand removed"), QStringLiteral("/sun intensity, ignored")}));
        // Nothing was changed or opened.
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("robot.mrd")));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void aClickSelectsNodeAndField()
    {
        open(m_robot);
        compare(m_other);
        clickRow(view(), model()->index(1, 0));
        QCOMPARE(m_session->services().getSelectedNode(), robot()->getChild(0));
        QCOMPARE(m_session->services().getSelectedField(), robot()->getChild(0)->getField(VbName("positions")));
        clickRow(view(), model()->index(2, 0)); // removed: the node is in this scene
        QCOMPARE(m_session->services().getSelectedNode(), robot()->getChild(1));
        QVERIFY(m_session->services().getSelectedField() == nullptr);
        clickRow(view(), model()->index(0, 0)); // added: its group is in this scene
        QCOMPARE(m_session->services().getSelectedNode(), static_cast<NxFieldContainer*>(robot()));
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(view(), Qt::Key_Down);
        QCOMPARE(m_session->services().getSelectedNode(), static_cast<NxFieldContainer*>(sun()));
        QCOMPARE(m_session->services().getSelectedField(), sun()->getField(VbName("intensity")));
    }

    void aClickOnADeletedNodeSelectsNothingElse()
    {
        open(m_robot);
        compare(m_other);
        robot()->removeChild(0);
        AppScenes::runSensors();
        m_session->services().selectNode(sun());
        clickRow(view(), model()->index(1, 0));
        QCOMPARE(m_session->services().getSelectedNode(), static_cast<NxFieldContainer*>(sun()));
    }

    void aChangedSceneIsComparedAgain()
    {
        open(m_robot);
        compare(m_other);
        const int before = model()->rowCount();
        QVERIFY(robot()->getChild(0)->getField(VbName("positions"))->set("[1 2 3]"));
        robot()->setName(VbString("machine"));
        QSignalSpy ended(dock()->comparer(), &SceneComparer::ended);
        QTest::mouseClick(dock()->findChild<QToolButton*>(QStringLiteral("compareAgain")), Qt::LeftButton);
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(model()->rowCount(), before);
        QCOMPARE(paths(),
            QStringList({QStringLiteral("/machine renamed"), QStringLiteral("/robot/new added"),
                QStringLiteral("/machine/hand removed"), QStringLiteral("/sun intensity, ignored")}));
    }

    void aSceneIsEqualToItsOwnFile()
    {
        open(m_robot);
        compare(m_robot);
        QCOMPARE(model()->rowCount(), 0);
        QCOMPARE(dock()->findChild<QLabel*>(QStringLiteral("comparisonText"))->text(),
            QStringLiteral("No differences: the scene and robot.mrd are equal."));
    }

    void theResultGoesWithItsScene_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("close") << QStringLiteral("file.close");
        QTest::newRow("new") << QStringLiteral("file.new");
    }

    void theResultGoesWithItsScene()
    {
        QFETCH(const QString, name);
        open(m_robot);
        compare(m_other);
        m_window->findChild<QAction*>(name)->trigger();
        QTRY_COMPARE(model()->rowCount(), 0);
        QVERIFY(!dock()->findChild<QToolButton*>(QStringLiteral("compareAgain"))->isEnabled());
        QCOMPARE(messages().filter(QStringLiteral("Not done")), QStringList());
    }

    void aComparisonThatRunsEndsWithItsScene()
    {
        open(m_robot);
        m_window->compareWith(AppScenes::robot(), m_other);
        QVERIFY(dock()->comparer()->isWorking());
        m_window->document().close();
        QVERIFY(!dock()->comparer()->isWorking());
        QCOMPARE(messages().filter(QStringLiteral("Not done")),
            QStringList(QStringLiteral("Not done: comparing with other.mrd. The scene was closed.")));
    }

    void aWindowThatClosesEndsTheComparison()
    {
        open(m_robot);
        m_window->compareWith(AppScenes::robot(), m_other);
        QVERIFY(m_window->close());
    }

    void aComparisonIsCancelled()
    {
        open(m_robot);
        m_window->compareWith(AppScenes::robot(), m_other);
        QSignalSpy ended(dock()->comparer(), &SceneComparer::ended);
        m_window->findChild<JobBar*>()->cancel();
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(model()->rowCount(), 0);
        QCOMPARE(messages().filter(QStringLiteral("omparing")), QStringList());
    }

    void theLastOfTwoComparisonsIsShown()
    {
        open(m_robot);
        m_window->compareWith(AppScenes::robot(), filePath("first.mrd"));
        compare(m_other);
        QCOMPARE(model()->rowCount(), 4);
        QVERIFY(dock()
                    ->findChild<QLabel*>(QStringLiteral("comparisonHeading"))
                    ->text()
                    .contains(QStringLiteral("from other.mrd")));
    }

    void aSceneInMemoryIsComparedWithoutAFile()
    {
        open(m_robot);
        const NxRef<NxGroup> other = AppScenes::robot();
        other->getChild(1)->setName(VbString("moon"));
        m_window->compareWith(other, m_robot);
        QTRY_COMPARE(model()->rowCount(), 1);
        QCOMPARE(paths(), QStringList(QStringLiteral("/sun renamed")));
        QCOMPARE(other->getRefCount(), 2); // it is kept to compare again
        m_window->document().close();
        m_session->disposal().finish();
        QCOMPARE(other->getRefCount(), 1);
    }

    void theDockComesBackWhereItWas()
    {
        open(m_robot);
        compare(m_other);
        m_window->addDockWidget(Qt::LeftDockWidgetArea, dock());
        QVERIFY(m_window->close());
        makeWindow();
        QVERIFY(dock() == nullptr);
        open(m_robot);
        compare(m_other);
        QCOMPARE(m_window->dockWidgetArea(dock()), Qt::LeftDockWidgetArea);
    }

private:
    /// Compares with a file as a user does.
    void compare(const QString& fileName)
    {
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->findChild<FileFlow*>()->compareWith(fileName);
        QTRY_COMPARE(settled.size(), 1);
        QTRY_VERIFY(!dock()->comparer()->isWorking());
    }

    [[nodiscard]] QStringList paths() const
    {
        QStringList result;
        for (int row = 0; row < model()->rowCount(); ++row)
            result += model()->index(row, DifferenceModel::NodeColumn).data().toString() + u' '
                + model()->index(row, DifferenceModel::SubjectColumn).data().toString();
        return result;
    }

    [[nodiscard]] QAction* action() const { return m_window->findChild<QAction*>(QStringLiteral("file.compare")); }
    [[nodiscard]] ComparisonDock* dock() const { return m_window->findChild<ComparisonDock*>(); }
    [[nodiscard]] DifferenceModel* model() const
    {
        return dock() == nullptr ? nullptr : dock()->findChild<DifferencePanel*>()->model();
    }
    [[nodiscard]] QTableView* view() const { return dock()->findChild<DifferencePanel*>()->view(); }

    QString m_other;
};

QTEST_MAIN(TestComparisonDock)
#include "tst_ComparisonDock.moc"
