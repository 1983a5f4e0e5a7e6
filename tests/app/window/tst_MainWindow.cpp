#include "TestFiles.h"
#include "app/AppScenes.h"
#include "app/window/RobotWindowCase.h"

#include "meridane/base/errors/NxError.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

class TestMainWindow : public RobotWindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startBesideRobot(); }
    void cleanup() { endTool(); }

    void hintsAtWhatToDoWhileNothingIsOpen()
    {
        QVERIFY(m_window->findChild<QPushButton*>(QStringLiteral("startOpen"))->isVisible());
        QVERIFY(!table()->isVisible());
        QTest::mouseClick(m_window->findChild<QPushButton*>(QStringLiteral("startNew")), Qt::LeftButton);
        QVERIFY(m_window->document().isOpen());
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("Untitled[*]")));
    }

    void renamesByTheKeyboardAndUndoes()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(0, 0));
        QTest::keyClick(tree(), Qt::Key_F2);
        auto* line = tree()->viewport()->findChild<QLineEdit*>();
        QVERIFY(line != nullptr);
        QTest::keyClicks(line, QStringLiteral("machine"));
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(robot()->getName(), VbString("machine"));
        QVERIFY(m_window->isWindowModified());
        QTRY_COMPARE(tree()->model()->index(0, 0).data().toString(), QStringLiteral("machine"));
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(robot()->getName(), VbString("robot"));
        QVERIFY(!m_window->isWindowModified());
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(robot()->getName(), VbString("machine"));
    }

    void deletesANodeAndBringsItBack()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(0, 0));
        NxNode* node = robot();
        QTest::keyClick(tree(), Qt::Key_Delete);
        QCOMPARE(m_window->document().scene()->getNumChildren(), 1);
        QTRY_COMPARE(tree()->model()->rowCount(), 1);
        QTRY_COMPARE(m_session->services().getSelectedNode(), m_window->document().scene()->getChild(0));
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_window->document().scene()->getChild(0), node);
        QTRY_COMPARE(tree()->model()->rowCount(), 2);
    }

    void remembersFilesAndPlaceFromRunToRun()
    {
        open(m_robot);
        m_window->resize(901, 577);
        QVERIFY(m_window->close());
        makeWindow();
        QCOMPARE(m_window->size(), QSize(901, 577));
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        const QMenu* recent = m_window->findChild<QMenu*>(QStringLiteral("recentMenu"));
        QCOMPARE(recent->actions().front()->data().toString(), m_robot);
        recent->actions().front()->trigger();
        QTRY_COMPARE(settled.size(), 1);
        QCOMPARE(m_window->document().fileName(), m_robot);
    }

    void recentFilesAreForgotten()
    {
        open(m_robot);
        const QMenu* recent = m_window->findChild<QMenu*>(QStringLiteral("recentMenu"));
        QVERIFY(recent->isEnabled());
        m_window->findChild<QAction*>(QStringLiteral("file.clearRecent"))->trigger();
        QVERIFY(!recent->isEnabled());
        makeWindow();
        QVERIFY(!m_window->findChild<QMenu*>(QStringLiteral("recentMenu"))->isEnabled());
    }

    void reportsABrokenSettingsFileAndLeavesIt()
    {
        m_window.reset();
        m_session.reset();
        const QString settings = filePath("orvane.ini");
        writeFile(settings, "what is this\n");
        makeWindow();
        QCOMPARE(messages().size(), 1);
        QVERIFY(messages().front().contains(settings));
        QVERIFY(m_window->close());
        m_window.reset();
        m_session.reset();
        QCOMPARE(readFile(settings), QByteArray("what is this\n"));
    }

    void showsToolkitErrorsThatNobodyElseHandles()
    {
        NxError::post("something went wrong");
        QVERIFY(messages().isEmpty());
        QTRY_COMPARE(messages(), QStringList(QStringLiteral("something went wrong")));
    }

    void staysAsWideAsItWasWhenAMessageHasALongName()
    {
        m_window->resize(800, 600);
        QCoreApplication::processEvents();
        const QSize before = m_window->size();
        QVERIFY(!open(m_folder->filePath(QString(200, u'x') + QStringLiteral(".mrd"))).isEmpty());
        m_window->showError(QString(20000, u'y'));
        QCoreApplication::processEvents();
        QCOMPARE(m_window->size(), before);
        QVERIFY(m_window->minimumSizeHint().width() <= before.width());
    }
};

QTEST_MAIN(TestMainWindow)
#include "tst_MainWindow.moc"
