#include "TestFiles.h"
#include "app/AppScenes.h"
#include "app/window/RobotWindowCase.h"

#include "orvane/app/files/FileFlow.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>

class TestMainWindowFiles : public RobotWindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startBesideRobot(); }
    void cleanup() { endTool(); }

    void opensAScene()
    {
        open(m_robot);
        QCOMPARE(tree()->model()->rowCount(), 2);
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("robot.mrd[*]")));
        QVERIFY(!m_window->isWindowModified());
    }

    void savesWithTheKeyboard()
    {
        open(m_robot);
        renameRobot("machine");
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(settled.size(), 1);
        QVERIFY(readFile(m_robot).contains("\"machine\""));
        QVERIFY(!m_window->isWindowModified());
    }

    void asksAheadOfLosingChanges_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<bool>("saved");
        QTest::newRow("save") << int(QMessageBox::Save) << true << true;
        QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
    }

    void asksAheadOfLosingChanges()
    {
        QFETCH(const int, answer);
        QFETCH(const bool, closed);
        QFETCH(const bool, saved);
        open(m_robot);
        renameRobot("machine");
        QVERIFY(!m_window->close());
        auto* question = m_window->findChild<QMessageBox*>(QStringLiteral("saveQuestion"));
        QVERIFY(question != nullptr);
        QTest::mouseClick(question->button(static_cast<QMessageBox::StandardButton>(answer)), Qt::LeftButton);
        QTRY_COMPARE(m_window->isHidden(), closed);
        QCOMPARE(readFile(m_robot).contains("\"machine\""), saved);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void keepsTheOpenSceneWhenAFileIsRefused_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("broken") << QByteArray("#mrd 1.0\nGroup {\n");
        QTest::newRow("not a scene") << QByteArray("\x7f\x45\x4c\x46");
    }

    void keepsTheOpenSceneWhenAFileIsRefused()
    {
        QFETCH(const QByteArray, content);
        open(m_robot);
        renameRobot("machine");
        m_session->services().setClean();
        const QString other = filePath("other.mrd");
        if (!content.isEmpty())
            writeFile(other, content);
        QVERIFY(open(other).contains(other));
        QVERIFY(messages().join(u'\n').contains(other));
        QCOMPARE(robot()->getName(), VbString("machine"));
        QVERIFY(m_session->services().canUndo());
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("robot.mrd")));
        QVERIFY(open(m_robot).isEmpty());
        QVERIFY(!messages().join(u'\n').contains(other));
    }

    void closingTheSceneDropsTheModelBeingAdded_data()
    {
        QTest::addColumn<QString>("action");
        QTest::newRow("close") << QStringLiteral("file.close");
        QTest::newRow("new") << QStringLiteral("file.new");
    }

    void closingTheSceneDropsTheModelBeingAdded()
    {
        QFETCH(const QString, action);
        open(m_robot);
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->findChild<FileFlow*>()->import(m_robot);
        m_window->findChild<QAction*>(action)->trigger();
        QTRY_COMPARE(settled.size(), 1);
        QVERIFY(!m_window->document().isOpen() || m_window->document().scene()->getNumChildren() == 0);
        QVERIFY2(messages().join(u'\n').startsWith(QStringLiteral("Not done: adding robot.mrd.")),
            qPrintable(messages().join(u'\n')));
    }

    void savingDoesNotStopAnOpen()
    {
        open(m_robot);
        renameRobot("machine");
        const QString other = filePath("other.mrd");
        writeFile(other, "#mrd 1.0\nGroup \"other\" {}\n");
        m_session->services().setClean();
        m_window->openFile(other);
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(m_window->document().fileName(), other);
        QVERIFY(readFile(m_robot).contains("\"machine\""));
        QCOMPARE(readFile(other), QByteArray("#mrd 1.0\nGroup \"other\" {}\n"));
    }

    void opensADroppedFile()
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(m_robot)});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &enter);
        QVERIFY(enter.isAccepted());
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        QDropEvent drop(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &drop);
        QTRY_COMPARE(settled.size(), 1);
        QVERIFY(m_window->document().isOpen());
    }

    void refusesADropThatIsNoFile()
    {
        QMimeData data;
        data.setText(QStringLiteral("text"));
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(m_window.get(), &enter);
        QVERIFY(!enter.isAccepted());
    }

    void showsAFileThatCannotBeWritten()
    {
        open(m_robot);
        renameRobot("machine");
        const QString fileName = filePath("missing/robot.mrd");
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->findChild<FileFlow*>()->saveTo(fileName);
        QTRY_COMPARE(settled.size(), 1);
        QVERIFY(messages().join(u'\n').contains(fileName));
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(m_window->document().fileName(), m_robot);
    }

    void blocksInputWhileASceneIsWritten()
    {
        open(m_robot);
        clickRow(tree(), tree()->model()->index(0, 0));
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->findChild<FileFlow*>()->saveTo(filePath("copy.mrd"));
        QTest::keyClick(tree(), Qt::Key_Delete);
        QCOMPARE(m_window->document().scene()->getNumChildren(), 2);
        QTRY_COMPARE(settled.size(), 1);
        QTest::keyClick(tree(), Qt::Key_Delete);
        QCOMPARE(m_window->document().scene()->getNumChildren(), 1);
    }
};

QTEST_MAIN(TestMainWindowFiles)
#include "tst_MainWindowFiles.moc"
