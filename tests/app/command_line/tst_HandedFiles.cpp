#include "app/window/RobotWindowCase.h"

#include "orvane/app/command_line/HandedFiles.h"
#include "orvane/app/instance/InstanceClient.h"
#include "orvane/app/instance/NewWindow.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPointer>
#include <QThread>

using namespace Qt::StringLiterals;

/// Files that other processes hand to the window, and windows that it opens.
class TestHandedFiles : public RobotWindowCase {
    Q_OBJECT

private:
    /// Hands the file as another process would.
    InstanceClient::Result hand(const HandedFile& file)
    {
        InstanceClient::Result result;
        const std::unique_ptr<QThread> thread(QThread::create([this, &file, &result] {
            result = InstanceClient(folder(), std::chrono::milliseconds(testPatience)).hand(file);
        }));
        QSignalSpy finished(thread.get(), &QThread::finished);
        thread->start();
        if (finished.isEmpty())
            finished.wait(testPatience);
        thread->wait();
        return result;
    }
    [[nodiscard]] SocketFolder folder() const { return SocketFolder::open(filePath("run"), u":1"_s).value(); }
    /// The question about changes that is seen, or null.
    QMessageBox* question()
    {
        for (QMessageBox* const box : m_window->findChildren<QMessageBox*>(u"saveQuestion"_s)) {
            if (box->isVisible())
                return box;
        }
        return nullptr;
    }

private Q_SLOTS:
    void init()
    {
        startBesideRobot();
        auto* const handed = new HandedFiles(u"1"_s, m_window.get());
        QVERIFY(handed->start(folder()));
    }
    void cleanup()
    {
        NewWindow::setStart({});
        endTool();
    }

    void aFileIsOpenedAndANodeSelected()
    {
        QCOMPARE(hand({u"1"_s, m_robot, u"/robot"_s, {}}).outcome, InstanceClient::Outcome::Taken);
        QTRY_COMPARE(m_window->document().fileName(), m_robot);
        QTRY_VERIFY(m_session->services().getSelectedNode() == robot());
    }

    void theWindowComesBackFromTheTaskBar()
    {
        m_window->showMinimized();
        QTRY_VERIFY(m_window->isMinimized());
        QCOMPARE(hand({u"1"_s, {}, {}, {}}).outcome, InstanceClient::Outcome::Taken);
        QVERIFY(!m_window->isMinimized());
    }

    void whatCantBeOpenedIsSaidHere()
    {
        QCOMPARE(hand({u"1"_s, filePath("gone.mrd"), {}, {}}).outcome, InstanceClient::Outcome::Taken);
        QTRY_VERIFY(messages().join(u' ').contains(u"gone.mrd"_s));
    }

    /// As with every other file that is opened.
    void changesAreAskedAbout()
    {
        open(m_robot);
        renameRobot("other");
        QCOMPARE(hand({u"1"_s, filePath("gone.mrd"), {}, {}}).outcome, InstanceClient::Outcome::Taken);
        QTRY_VERIFY(question() != nullptr);
        const QPointer<QMessageBox> first = question();
        // Another one waits for its turn, and nothing is lost.
        QCOMPARE(hand({u"1"_s, m_robot, {}, {}}).outcome, InstanceClient::Outcome::Taken);
        QTest::mouseClick(first->button(QMessageBox::Cancel), Qt::LeftButton);
        QTRY_VERIFY(question() != nullptr && question() != first);
        QVERIFY(m_window->document().isModified());
    }

    void aClosedWindowTakesNothing()
    {
        QVERIFY(m_window->close());
        QCOMPARE(hand({u"1"_s, m_robot, {}, {}}).outcome, InstanceClient::Outcome::Refused);
    }

    void anotherWindowIsStarted()
    {
        QStringList arguments;
        NewWindow::setStart([&arguments](const QStringList& given) {
            arguments = given;
            return true;
        });
        QTest::keyClick(m_window.get(), Qt::Key_N, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(arguments, QStringList(u"--new-window"_s));
        QVERIFY(NewWindow::open(u"/a b.mrd"_s));
        QCOMPARE(arguments, QStringList({u"--new-window"_s, u"--"_s, u"/a b.mrd"_s}));
        QVERIFY(NewWindow::open(orvane::fromStdFileName("/a\xFF.mrd")));
        QCOMPARE(arguments.last(), u"file:///a%FF.mrd"_s);
        QVERIFY(messages().isEmpty());
    }

    void aWindowThatCantBeStartedIsSaid()
    {
        NewWindow::setStart([](const QStringList&) { return false; });
        QTest::keyClick(m_window.get(), Qt::Key_N, Qt::ControlModifier | Qt::AltModifier);
        QVERIFY(messages().join(u' ').contains(u"can't be opened"_s));
    }
};

QTEST_MAIN(TestHandedFiles)

#include "tst_HandedFiles.moc"
