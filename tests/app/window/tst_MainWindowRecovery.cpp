#include "app/recovery/RecoveredText.h"
#include "app/window/RobotWindowCase.h"

#include "orvane/app/recovery/RecoveryFolder.h"

#include "meridane/scene/nodes/NxMesh.h"

#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>

/// Scenes that a program has left behind, as the next window offers them.
class TestMainWindowRecovery : public RobotWindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startBesideRobot(); }
    void cleanup() { endTool(); }

    void offersAndRecoversAScene()
    {
        const std::string edited = leaveRobot("machine");
        m_window->startRecovery(folder());
        QTRY_COMPARE(offers().size(), 1);
        QVERIFY2(offers().front().startsWith(
                     QStringLiteral("robot.mrd was open when Orvane ended unexpectedly. 1 unsaved change can be")),
            qPrintable(offers().front()));
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        click("recoverScene");
        QTRY_COMPARE(settled.size(), 1);
        QCOMPARE(NxSceneWriter::toText(m_window->document().scene()), edited);
        QCOMPARE(m_window->document().fileName(), m_robot);
        QVERIFY(m_window->isWindowModified());
        QVERIFY(!m_session->services().canUndo());
        QCOMPARE(offers(), QStringList());
        // Saved, there is nothing to recover any more.
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(settled.size(), 2);
        QVERIFY(readFile(m_robot).contains("\"machine\""));
        QVERIFY(!m_window->isWindowModified());
        QTRY_COMPARE(files(), QStringList());
    }

    void discardsAScene()
    {
        leaveRobot("machine");
        m_window->startRecovery(folder());
        QTRY_COMPARE(offers().size(), 1);
        click("discardScene");
        QCOMPARE(offers(), QStringList());
        QCOMPARE(files(), QStringList());
        QVERIFY(!m_window->document().isOpen());
    }

    void offersOneAfterTheOther()
    {
        leaveRobot("machine");
        leaveRobot("engine");
        m_window->startRecovery(folder());
        QTRY_COMPARE(offers().size(), 1);
        click("discardScene");
        QTRY_COMPARE(offers().size(), 1);
        QCOMPARE(files().size(), 1);
        // Without an answer it stays for the next program.
        click("closeMessage");
        QCOMPARE(offers(), QStringList());
        QCOMPARE(files().size(), 1);
        makeWindow();
        QCOMPARE(files().size(), 1);
    }

    void saysWhyASceneCannotBeRecovered()
    {
        leaveRobot("machine");
        writeFile(m_robot, "#mrd 1.0\nGroup \"other\" {}\n");
        m_window->startRecovery(folder());
        QTRY_COMPARE(offers().size(), 1);
        QVERIFY2(
            offers().front().contains(QStringLiteral("its file has changed since then")), qPrintable(offers().front()));
        QVERIFY(m_window->findChild<QPushButton*>(QStringLiteral("recoverScene")) == nullptr);
        click("discardScene");
        QCOMPARE(files(), QStringList());
    }

    void aFileThatChangesAfterTheOfferIsRefused()
    {
        leaveRobot("machine");
        m_window->startRecovery(folder());
        QTRY_COMPARE(offers().size(), 1);
        writeFile(m_robot, "#mrd 1.0\nGroup \"other\" {}\n");
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        click("recoverScene");
        QTRY_COMPARE(settled.size(), 1);
        QVERIFY(!m_window->document().isOpen());
        // It is offered again, in case the file comes back.
        QTRY_COMPARE(offers().size(), 1);
        QVERIFY2(messages().join(u'\n').contains(
                     QStringLiteral("robot.mrd can't be recovered: its file has changed since then")),
            qPrintable(messages().join(u'\n')));
        writeFile(m_robot, AppScenes::robotText);
        click("recoverScene");
        QTRY_COMPARE(settled.size(), 2);
        QCOMPARE(robot()->getName(), VbString("machine"));
        m_session->services().setClean();
    }

    void asksAboutChangesOfTheOpenScene()
    {
        leaveRobot("machine");
        QVERIFY(open(m_robot).isEmpty());
        renameRobot("engine");
        m_window->startRecovery(folder());
        QTRY_COMPARE(offers().size(), 1);
        click("recoverScene");
        auto* question = m_window->findChild<QMessageBox*>(QStringLiteral("saveQuestion"));
        QVERIFY(question != nullptr);
        QTest::mouseClick(question->button(QMessageBox::Cancel), Qt::LeftButton);
        QTRY_COMPARE(offers().size(), 1); // offered again
        QCOMPARE(robot()->getName(), VbString("engine"));
        m_session->services().setClean();
        click("recoverScene");
        QTRY_COMPARE(robot()->getName(), VbString("machine"));
        m_session->services().setClean();
    }

    void aFileThatChangesOnDiskIsNotNeededAnyMore()
    {
        const RecoveryFolder used(filePath("used"));
        m_window->startRecovery(used);
        QVERIFY(open(m_robot).isEmpty());
        renameRobot("machine");
        writeFile(m_robot, "#mrd 1.0\nGroup \"other\" {}\n");
        const std::string edited = NxSceneWriter::toText(m_window->document().scene());
        // From then on a crash leaves the whole scene.
        QTRY_COMPARE(textAfterCrash(used), edited);
        m_session->services().setClean();
    }

    void changesAfterAReloadBeginFromTheFile()
    {
        const RecoveryFolder used(filePath("used"));
        m_window->startRecovery(used);
        QVERIFY(open(m_robot).isEmpty());
        renameRobot("machine");
        writeFile(m_robot, "#mrd 1.0\nGroup \"robot\" {\n  Mesh \"leg\" {}\n  Mesh \"arm\" {}\n}\n");
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        QTest::keyClick(m_window.get(), Qt::Key_F5);
        QTRY_COMPARE(settled.size(), 1);
        renameRobot("engine");
        QTRY_COMPARE(textAfterCrash(used), NxSceneWriter::toText(m_window->document().scene()));
        m_session->services().undo();
        m_session->services().undo();
        QCOMPARE(robot()->getName(), VbString("machine"));
        QTRY_COMPARE(textAfterCrash(used), NxSceneWriter::toText(m_window->document().scene()));
        m_session->services().setClean();
    }

    void aFolderThatCannotBeUsedIsAMessage()
    {
        writeFile(filePath("recovery"), "in the way");
        m_window->startRecovery(folder());
        QVERIFY(open(m_robot).isEmpty());
        renameRobot("machine");
        const QString beginning = QStringLiteral("Unsaved changes can't be kept for recovery after a crash: ");
        QTRY_COMPARE(messages().filter(beginning).size(), 1);
        m_session->services().setClean();
    }

private:
    [[nodiscard]] QStringList offers() { return messages().filter(QStringLiteral("ended unexpectedly")); }
    [[nodiscard]] RecoveryFolder folder() { return RecoveryFolder(filePath("recovery")); }
    [[nodiscard]] QStringList files()
    {
        return QDir(folder().path()).entryList({QStringLiteral("*.recovery")}, QDir::Files);
    }

    /// Leaves a recovery file of the robot with another name, as a program would that is killed. Returns the text of
    /// the scene.
    std::string leaveRobot(const char* name)
    {
        const RecoveryFolder used(filePath("used"));
        m_window->startRecovery(used);
        open(m_robot);
        renameRobot(name);
        const QDir usedFiles(used.path());
        const auto written = [&usedFiles] { return usedFiles.entryList({QStringLiteral("*.recovery")}, QDir::Files); };
        if (!QTest::qWaitFor([&written] { return !written().isEmpty(); }, testPatience))
            return "[no recovery file]";
        QDir().mkpath(folder().path());
        const QString target = folder().path() + QStringLiteral("/%1.recovery").arg(files().size());
        QFile::copy(usedFiles.filePath(written().front()), target);
        const std::string text = NxSceneWriter::toText(m_window->document().scene());
        m_session->services().setClean();
        makeWindow();
        return text;
    }

    /// The text of the scene that a crash at this moment would leave, or a message in brackets.
    std::string textAfterCrash(const RecoveryFolder& used)
    {
        const QDir usedFiles(used.path());
        const QStringList names = usedFiles.entryList({QStringLiteral("*.recovery")}, QDir::Files);
        const QString copy = filePath("copy.recovery");
        QFile::remove(copy);
        if (names.size() != 1 || !QFile::copy(usedFiles.filePath(names.front()), copy))
            return "[no recovery file]";
        return RecoveredText::of(copy);
    }

    void click(const char* button)
    {
        auto* const found = m_window->findChild<QAbstractButton*>(QLatin1String(button));
        QVERIFY(found != nullptr);
        QTest::mouseClick(found, Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

QTEST_MAIN(TestMainWindowRecovery)
#include "tst_MainWindowRecovery.moc"
