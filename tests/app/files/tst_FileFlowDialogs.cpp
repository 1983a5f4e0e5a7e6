#include "app/files/FileFlowCase.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QTest>
#include <QWindow>

/// What becomes of what was read while a dialog or a question is open.
class TestFileFlowDialogs : public FileFlowCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startFlow(); }
    void cleanup() { endFlow(); }

    void whatWasReadWaitsForADialog_data()
    {
        QTest::addColumn<Kind>("job");
        QTest::addColumn<Kind>("dialog");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](Kind job, Kind dialog, const QStringList& expected) {
            QTest::addRow("%s, %s", name(job), name(dialog)) << job << dialog << expected;
        };
        const QString readsA = QStringLiteral("read a.mrd");
        const QString opensA = QStringLiteral("open [a]");
        row(Kind::Open, Kind::SaveAs, {readsA, QStringLiteral("write [old] to chosen.mrd"), opensA});
        row(Kind::Open, Kind::Export, {readsA, QStringLiteral("write [old] to chosen.glb"), opensA});
        row(Kind::Add, Kind::SaveAs,
            {readsA, QStringLiteral("write [old] to chosen.mrd"), QStringLiteral("now [old+a]")});
        row(Kind::Add, Kind::Export,
            {readsA, QStringLiteral("write [old] to chosen.glb"), QStringLiteral("now [old+a]")});
    }

    void whatWasReadWaitsForADialog()
    {
        QFETCH(const Kind, job);
        QFETCH(const Kind, dialog);
        QFETCH(const QStringList, expected);
        ask(job, "a.mrd");
        if (dialog == Kind::SaveAs)
            m_flow->saveAs();
        else
            m_flow->chooseFileToExport();
        auto* shown = m_window->findChild<QFileDialog*>();
        QVERIFY(shown != nullptr);
        HeldJobs::finish(m_jobs->running().front());
        settle();
        QCOMPARE(sceneName(), QStringLiteral("[old]"));
        choose(shown, dialog == Kind::SaveAs ? "chosen.mrd" : "chosen.glb");
        QTRY_COMPARE(m_jobs->running().size(), std::size_t{1});
        settle();
        QCOMPARE(sceneName(), QStringLiteral("[old]"));
        HeldJobs::finish(m_jobs->running().front());
        settle();
        if (job == Kind::Add)
            note("now ", sceneName());
        QCOMPARE(m_jobs->log(), expected);
    }

    void whatWasReadWaitsForTheQuestion_data()
    {
        QTest::addColumn<Kind>("job");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QStringList>("expected");
        const QString readsA = QStringLiteral("read a.mrd");
        const QString discarded = QStringLiteral("open nothing");
        const QString unopened = QStringLiteral("Not done: opening a.mrd. The scene was closed.");
        const QString unadded = QStringLiteral("Not done: adding a.mrd. The scene was closed.");
        QTest::newRow("open, discard") << Kind::Open << int(QMessageBox::Discard)
                                       << QStringList{readsA, discarded, unopened};
        QTest::newRow("open, save") << Kind::Open << int(QMessageBox::Save)
                                    << QStringList{
                                           readsA, QStringLiteral("write [old+edit] to old.mrd"), discarded, unopened};
        QTest::newRow("add, discard") << Kind::Add << int(QMessageBox::Discard)
                                      << QStringList{readsA, discarded, unadded};
        QTest::newRow("add, save") << Kind::Add << int(QMessageBox::Save)
                                   << QStringList{
                                          readsA, QStringLiteral("write [old+edit] to old.mrd"), discarded, unadded};
        QTest::newRow("add, cancel") << Kind::Add << int(QMessageBox::Cancel)
                                     << QStringList{readsA, QStringLiteral("now [old+edit+a]")};
    }

    // Closing is asked for while a file is read, which is ready before the question is answered.
    void whatWasReadWaitsForTheQuestion()
    {
        QFETCH(const Kind, job);
        QFETCH(const int, answer);
        QFETCH(const QStringList, expected);
        ask(job, "a.mrd");
        edit();
        m_flow->closeScene();
        QVERIFY(question() != nullptr);
        HeldJobs::finish(m_jobs->running().front());
        settle();
        QCOMPARE(sceneName(), QStringLiteral("[old+edit]"));
        answerQuestion(answer);
        finishAll();
        if (answer == QMessageBox::Cancel)
            note("now ", sceneName());
        QCOMPARE(m_jobs->log() + m_messages->texts(), expected);
    }

    void whatWasReadWaitsForADialogOfAnEditor()
    {
        m_flow->open(path("a.mrd"));
        QDialog dialog(m_window.get());
        dialog.open();
        HeldJobs::finish(m_jobs->running().front());
        settle();
        QCOMPARE(sceneName(), QStringLiteral("[old]"));
        dialog.reject();
        QTRY_COMPARE(sceneName(), QStringLiteral("[a]"));
    }

    void anEditMadeWhileAFileIsReadIsAskedAbout()
    {
        m_flow->open(path("a.mrd"));
        edit();
        HeldJobs::finish(m_jobs->running().front());
        QTRY_VERIFY(question() != nullptr);
        QCOMPARE(sceneName(), QStringLiteral("[old+edit]"));
        answerQuestion(QMessageBox::Cancel);
        settle();
        QCOMPARE(sceneName(), QStringLiteral("[old+edit]"));
    }

    void askingManyTimesToQuitAsksOneQuestion()
    {
        m_flow->save();
        edit();
        int quits = 0;
        for (int time = 0; time < 3; ++time)
            m_flow->leaveForQuit([&quits] { ++quits; });
        edit();
        HeldJobs::finish(m_jobs->running().front());
        m_session->services().clearHistory(); // nothing left to ask about
        finishAll();
        QCOMPARE(quits, 1);
    }

    void aFailedSaveFromTheQuestionLeavesEverythingOpen()
    {
        edit();
        m_flow->closeScene();
        answerQuestion(QMessageBox::Save);
        QTRY_COMPARE(m_jobs->running().size(), std::size_t{1});
        HeldJobs::fail(m_jobs->running().front(), QStringLiteral("disk full"));
        finishAll();
        QCOMPARE(sceneName(), QStringLiteral("[old+edit]"));
        QVERIFY(document().isModified());
        // What was to follow is forgotten: the next save closes nothing.
        m_flow->save();
        finishAll();
        QCOMPARE(sceneName(), QStringLiteral("[old+edit]"));
    }

    void aRefusedSaveLeavesNothingBehind_data()
    {
        QTest::addColumn<Kind>("request");
        QTest::newRow("close") << Kind::Close;
        QTest::newRow("open") << Kind::Open;
        QTest::newRow("quit") << Kind::Quit;
    }

    void aRefusedSaveLeavesNothingBehind()
    {
        QFETCH(const Kind, request);
        QStringList ends;
        connect(m_flow, &FileFlow::ended, m_flow, [&ends](const orvane::Result<>& result) { ends += result.error(); });
        edit();
        ask(request, "a.mrd");
        QVERIFY(question() != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(question()));
        // The question is answered with a key while the mouse is dragged.
        QTest::mousePress(question()->windowHandle(), Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(QGuiApplication::mouseButtons(), Qt::LeftButton);
        QTest::keyClick(question()->button(QMessageBox::Save), Qt::Key_Space);
        settle();
        QTest::mouseRelease(m_window->windowHandle(), Qt::LeftButton, {}, QPoint(1, 1));
        QCOMPARE(QGuiApplication::mouseButtons(), Qt::NoButton);
        QVERIFY(m_jobs->running().empty());
        QCOMPARE(m_messages->texts(), QStringList(QStringLiteral("Nothing was saved: a mouse button is held down.")));
        QCOMPARE(ends, request == Kind::Open ? QStringList(QString()) : QStringList()); // to be refused is no failure
        // The next save is just that.
        m_flow->save();
        finishAll();
        QCOMPARE(sceneName(), QStringLiteral("[old+edit]"));
        QCOMPARE(m_jobs->log(), QStringList(QStringLiteral("write [old+edit] to old.mrd")));
        QVERIFY(!document().isModified());
    }
};

QTEST_MAIN(TestFileFlowDialogs)
#include "tst_FileFlowDialogs.moc"
