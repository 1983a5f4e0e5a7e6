#include "app/files/FileFlowCase.h"

#include "orvane/app/files/JobBar.h"

#include "meridane/base/errors/NxReadError.h"

#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTest>

/// What becomes of each request while a job runs.
class TestFileFlow : public FileFlowCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startFlow(); }
    void cleanup() { endFlow(); }

    // The table in docs/robustness.md: a row for each of its cells.
    void aRequestDuringAJobIsCarriedOutOrReported_data()
    {
        QTest::addColumn<Kind>("job");
        QTest::addColumn<Kind>("request");
        QTest::addColumn<QString>("expected");
        const auto row = [](Kind job, Kind request, const QByteArray& expected) {
            QTest::addRow("%s, %s", name(job), name(request)) << job << request << QString::fromLatin1(expected);
        };
        // The last word is the scene that is open when all jobs have ended.
        row(Kind::Open, Kind::Open,
            "read a.mrd; read b.mrd; open [b]; Not done: opening a.mrd. b.mrd is opened instead.");
        row(Kind::Open, Kind::Add, "read a.mrd; open [a]; Not done: adding b.mrd. a.mrd is being opened.");
        row(Kind::Open, Kind::Compare, "read a.mrd; open [a]; Not done: comparing with b.mrd. a.mrd is being opened.");
        row(Kind::Open, Kind::Reload, "read a.mrd; open [a]; Not done: reloading old.mrd. a.mrd is being opened.");
        row(Kind::Open, Kind::Save, "read a.mrd; write [old] to old.mrd; open [a]");
        row(Kind::Open, Kind::SaveAs, "read a.mrd; write [old] to chosen.mrd; open [a]");
        row(Kind::Open, Kind::Export, "read a.mrd; write [old] to out.glb; open [a]; Exported to out.glb.");
        row(Kind::Open, Kind::Close, "read a.mrd; open nothing; Not done: opening a.mrd. The scene was closed.");
        row(Kind::Open, Kind::New, "read a.mrd; open []; Not done: opening a.mrd. A new scene was made instead.");
        row(Kind::Open, Kind::Quit, "read a.mrd; quit");

        row(Kind::Add, Kind::Open,
            "read a.mrd; read b.mrd; open [b]; Not done: adding a.mrd. b.mrd is opened instead.");
        row(Kind::Add, Kind::Add, "read a.mrd; read b.mrd; now [old+a+b]");
        row(Kind::Add, Kind::Compare, "read a.mrd; read b.mrd; compare [old+a] with [b]");
        row(Kind::Add, Kind::Reload, "read a.mrd; read old.mrd; now [old]");
        row(Kind::Add, Kind::Save, "read a.mrd; write [old] to old.mrd; now [old+a]");
        row(Kind::Add, Kind::SaveAs, "read a.mrd; write [old] to chosen.mrd; now [old+a]");
        row(Kind::Add, Kind::Export, "read a.mrd; write [old] to out.glb; now [old+a]; Exported to out.glb.");
        row(Kind::Add, Kind::Close, "read a.mrd; open nothing; Not done: adding a.mrd. The scene was closed.");
        row(Kind::Add, Kind::New, "read a.mrd; open []; Not done: adding a.mrd. A new scene was made instead.");
        row(Kind::Add, Kind::Quit, "read a.mrd; quit; now [old]");

        row(Kind::Compare, Kind::Open,
            "read a.mrd; read b.mrd; open [b]; Not done: comparing with a.mrd. b.mrd is opened instead.");
        row(Kind::Compare, Kind::Add, "read a.mrd; compare [old] with [a]; read b.mrd; now [old+b]");
        row(Kind::Compare, Kind::Compare,
            "read a.mrd; read b.mrd; compare [old] with [b]; "
            "Not done: comparing with a.mrd. b.mrd is compared instead.");
        row(Kind::Compare, Kind::Reload, "read a.mrd; compare [old] with [a]; read old.mrd; now [old]");
        row(Kind::Compare, Kind::Save, "read a.mrd; write [old] to old.mrd; compare [old] with [a]");
        row(Kind::Compare, Kind::SaveAs, "read a.mrd; write [old] to chosen.mrd; compare [old] with [a]");
        row(Kind::Compare, Kind::Export,
            "read a.mrd; write [old] to out.glb; compare [old] with [a]; Exported to out.glb.");
        row(Kind::Compare, Kind::Close,
            "read a.mrd; open nothing; Not done: comparing with a.mrd. The scene was closed.");
        row(Kind::Compare, Kind::New,
            "read a.mrd; open []; Not done: comparing with a.mrd. A new scene was made instead.");
        row(Kind::Compare, Kind::Quit, "read a.mrd; quit; now [old]");

        row(Kind::Reload, Kind::Open,
            "read old.mrd; read b.mrd; open [b]; Not done: reloading old.mrd. b.mrd is opened instead.");
        row(Kind::Reload, Kind::Add, "read old.mrd; read b.mrd; now [old+b]");
        row(Kind::Reload, Kind::Compare, "read old.mrd; read b.mrd; compare [old] with [b]");
        row(Kind::Reload, Kind::Reload, "read old.mrd; read old.mrd; now [old]");
        row(Kind::Reload, Kind::Save,
            "read old.mrd; write [old] to old.mrd; now [old]; Not done: reloading old.mrd. The scene was saved.");
        row(Kind::Reload, Kind::SaveAs,
            "read old.mrd; write [old] to chosen.mrd; now [old]; Not done: reloading old.mrd. The scene was saved.");
        row(Kind::Reload, Kind::Export, "read old.mrd; write [old] to out.glb; now [old]; Exported to out.glb.");
        row(Kind::Reload, Kind::Close,
            "read old.mrd; open nothing; Not done: reloading old.mrd. The scene was closed.");
        row(Kind::Reload, Kind::New,
            "read old.mrd; open []; Not done: reloading old.mrd. A new scene was made instead.");
        row(Kind::Reload, Kind::Quit, "read old.mrd; quit; now [old]");

        for (const Kind job : {Kind::Save, Kind::Export}) {
            const QByteArray writes = job == Kind::Save ? "write [old] to old.mrd" : "write [old] to out.glb";
            const QByteArray exported = job == Kind::Export ? "; Exported to out.glb." : "";
            row(job, Kind::Open, writes + "; read b.mrd; open [b]" + exported);
            row(job, Kind::Add, writes + "; read b.mrd; now [old+b]" + exported);
            row(job, Kind::Compare, writes + "; read b.mrd; compare [old] with [b]" + exported);
            row(job, Kind::Reload, writes + "; read old.mrd; now [old]" + exported);
            row(job, Kind::Save, writes + "; write [old] to old.mrd");
            row(job, Kind::SaveAs, writes + "; write [old] to chosen.mrd");
            row(job, Kind::Export, writes + "; write [old] to out.glb; Exported to out.glb.");
            row(job, Kind::Close, writes + "; open nothing" + exported);
            row(job, Kind::New, writes + "; open []" + exported);
            row(job, Kind::Quit, writes + "; quit" + exported);
        }
    }

    void aRequestDuringAJobIsCarriedOutOrReported()
    {
        QFETCH(const Kind, job);
        QFETCH(const Kind, request);
        QFETCH(const QString, expected);
        ask(job, "a.mrd");
        QCOMPARE(m_jobs->running().size(), std::size_t{1});
        ask(request, "b.mrd");
        // A job that writes lets no dialog come up.
        if (request == Kind::SaveAs) {
            if (job == Kind::Save || job == Kind::Export) {
                QVERIFY(m_window->findChild<QFileDialog*>() == nullptr);
                HeldJobs::finish(m_jobs->running().front());
            }
            QTRY_VERIFY(m_window->findChild<QFileDialog*>() != nullptr);
            choose(m_window->findChild<QFileDialog*>(), "chosen.mrd");
        }
        finishAll();
        if (expected.contains(QStringLiteral("now ")))
            note("now ", sceneName());
        QStringList log = m_jobs->log() + m_messages->texts();
        log.replaceInStrings(m_folder->path() + u'/', QString());
        QCOMPARE(log.join(QStringLiteral("; ")), expected);
    }

    void openReportsHowItEnded_data()
    {
        QTest::addColumn<int>("end");
        QTest::addColumn<QString>("failure");
        QTest::newRow("finished") << 0 << QString();
        QTest::newRow("failed") << 1 << QStringLiteral("broken");
        QTest::newRow("cancelled") << 2 << QStringLiteral("Opening %1 was cancelled.");
        QTest::newRow("another file") << 3 << QStringLiteral("b.mrd is opened instead.");
        QTest::newRow("new scene") << 4 << QStringLiteral("A new scene was made instead.");
        QTest::newRow("question cancelled") << 5 << QStringLiteral("Opening %1 was cancelled.");
    }

    void openReportsHowItEnded()
    {
        QFETCH(const int, end);
        QFETCH(QString, failure);
        QStringList outcomes;
        if (end == 5)
            edit();
        m_flow->open(path("a.mrd"), [&outcomes](const orvane::Result<>& result) { outcomes += result.error(); });
        if (end == 0)
            HeldJobs::finish(m_jobs->running().front());
        else if (end == 1)
            HeldJobs::fail(m_jobs->running().front(), QStringLiteral("broken"));
        else if (end == 2)
            m_window->findChild<JobBar*>()->cancel();
        else if (end == 3)
            m_flow->open(path("b.mrd"));
        else if (end == 4)
            m_flow->newScene();
        else
            answerQuestion(QMessageBox::Cancel);
        finishAll();
        QCOMPARE(outcomes, QStringList(failure.replace(QStringLiteral("%1"), path("a.mrd"))));
    }

    void aFailedJobIsReportedOnce_data()
    {
        QTest::addColumn<Kind>("job");
        QTest::addColumn<int>("postedErrors");
        QTest::newRow("open") << Kind::Open << 1;
        QTest::newRow("add") << Kind::Add << 1;
        QTest::newRow("compare") << Kind::Compare << 1;
        QTest::newRow("save") << Kind::Save << 0; // no error of reading
        QTest::newRow("export") << Kind::Export << 0;
    }

    void aFailedJobIsReportedOnce()
    {
        QFETCH(const Kind, job);
        QFETCH(const int, postedErrors);
        int posted = 0;
        NxReadError::setHandlerCallback([](const NxError*, void* data) { ++*static_cast<int*>(data); }, &posted);
        QStringList ends;
        connect(m_flow, &FileFlow::ended, m_flow, [&ends](const orvane::Result<>& result) { ends += result.error(); });
        ask(job, "a.mrd");
        HeldJobs::fail(m_jobs->running().front(), QStringLiteral("a.mrd: broken"));
        finishAll();
        NxReadError::setHandlerCallback(nullptr, nullptr);
        QCOMPARE(posted, postedErrors);
        QCOMPARE(m_messages->texts(), QStringList(QStringLiteral("a.mrd: broken")));
        QCOMPARE(ends, QStringList(QStringLiteral("a.mrd: broken")));
    }

    void theNoteOfAFileIsPassedOn()
    {
        QStringList notes;
        connect(m_flow, &FileFlow::noted, m_flow, [&notes](const QString& text) { notes += text; });
        m_jobs->setNote({"it was turned", false});
        ask(Kind::Open, "a.mrd");
        finishAll();
        m_jobs->setNote({});
        ask(Kind::Open, "b.mrd");
        finishAll();
        QCOMPARE(notes, QStringList(QStringLiteral("it was turned")));
        QCOMPARE(m_messages->texts(), QStringList());
        QVERIFY(!m_session->services().canUndo());
    }

    void theConversionOfAModelIsUndone()
    {
        m_jobs->setNote({"it was scaled", true});
        ask(Kind::Open, "a.mrd");
        finishAll();
        OrvServices& services = m_session->services();
        auto& transform = dynamic_cast<NxTransform&>(*document().scene()->getChild(0));
        const VbVec3f converted(0.01F, 0.01F, 0.01F);
        QCOMPARE(transform.scaleFactor.getValue(), converted);
        QVERIFY(!document().isModified());
        QVERIFY(services.canUndo());
        QCOMPARE(services.undoText(), QStringLiteral("Convert Unit and Up Axis"));
        services.undo();
        QCOMPARE(transform.scaleFactor.getValue(), VbVec3f(1, 1, 1));
        QVERIFY(document().isModified());
        QVERIFY(!services.canUndo());
        services.redo();
        QCOMPARE(transform.scaleFactor.getValue(), converted);
        QVERIFY(!document().isModified());
    }

    void warningsOfAFileAreOneMessage()
    {
        m_jobs->setWarnings({QStringLiteral("no lamp"), QStringLiteral("no face")});
        ask(Kind::Open, "a.mrd");
        finishAll();
        const QString first = path("a.mrd") + QStringLiteral(": no lamp; no face");
        QCOMPARE(m_messages->texts(), QStringList(first));
        m_jobs->setWarnings({});
        ask(Kind::Open, "b.mrd");
        finishAll();
        QCOMPARE(m_messages->texts(), QStringList());
        QStringList added;
        for (const char* name : {"c.mrd", "d.mrd"}) {
            m_jobs->setWarnings({QStringLiteral("no leg")});
            ask(Kind::Add, name);
            finishAll();
            added += path(name) + QStringLiteral(": no leg");
        }
        QCOMPARE(m_messages->texts(), added);
    }

    void aSceneThatCouldNotBeWrittenIsNotLeft_data()
    {
        QTest::addColumn<bool>("cancel");
        QTest::newRow("failed") << false;
        QTest::newRow("cancelled") << true;
    }

    void aSceneThatCouldNotBeWrittenIsNotLeft()
    {
        QFETCH(const bool, cancel);
        QStringList outcomes;
        m_flow->save();
        m_flow->open(path("a.mrd"), [&outcomes](const orvane::Result<>& result) { outcomes += result.error(); });
        m_flow->import(path("b.mrd"));
        m_flow->leaveForQuit([] { QFAIL("the window was closed"); });
        if (cancel)
            m_window->findChild<JobBar*>()->cancel();
        else
            HeldJobs::fail(m_jobs->running().front(), QStringLiteral("disk full"));
        finishAll();
        QCOMPARE(m_jobs->log(), QStringList({QStringLiteral("write [old] to old.mrd"), QStringLiteral("read b.mrd")}));
        QCOMPARE(sceneName(), QStringLiteral("[old+b]"));
        QCOMPARE(outcomes, QStringList(QStringLiteral("old.mrd wasn't written.")));
        QVERIFY(
            m_messages->texts().contains(QStringLiteral("Not done: opening a.mrd, quitting. old.mrd wasn't written.")));
        QCOMPARE(m_messages->texts().contains(QStringLiteral("disk full")), !cancel);
    }

    void theMessageOfAFailedSaveOutlivesAnOpen()
    {
        m_flow->open(path("a.mrd"));
        m_flow->save();
        HeldJobs::fail(m_jobs->running().back(), QStringLiteral("disk full"));
        finishAll();
        QCOMPARE(sceneName(), QStringLiteral("[a]"));
        QCOMPARE(m_messages->texts(), QStringList(QStringLiteral("disk full")));
    }

    void aComparisonThatIsCancelledIsNoFailure()
    {
        QStringList ends;
        connect(m_flow, &FileFlow::ended, m_flow, [&ends](const orvane::Result<>& result) { ends += result.error(); });
        ask(Kind::Compare, "a.mrd");
        m_window->findChild<JobBar*>()->cancel();
        finishAll();
        QCOMPARE(m_jobs->log(), QStringList(QStringLiteral("read a.mrd")));
        QCOMPARE(m_messages->texts(), QStringList());
        QCOMPARE(ends, QStringList(QString()));
    }

    void nothingIsComparedWithoutAScene()
    {
        document().close();
        m_jobs->log().clear();
        ask(Kind::Compare, "a.mrd");
        finishAll();
        QCOMPARE(m_jobs->log(), QStringList());
    }

    void cancellingTwiceEndsOneJob()
    {
        m_flow->save();
        auto* jobBar = m_window->findChild<JobBar*>();
        jobBar->cancel();
        jobBar->cancel();
        m_flow->import(path("b.mrd"));
        finishAll();
        QCOMPARE(m_jobs->log().size(), 2);
        QCOMPARE(sceneName(), QStringLiteral("[old+b]"));
    }

    void theJobBarShowsTheEarlierJobAgain()
    {
        auto* jobBar = m_window->findChild<JobBar*>();
        const auto* label = jobBar->findChild<QLabel*>();
        m_flow->open(path("a.mrd"));
        QTRY_VERIFY(jobBar->isVisible());
        QCOMPARE(label->text(), QStringLiteral("Opening a.mrd"));
        m_flow->save();
        QCOMPARE(label->text(), QStringLiteral("Saving old.mrd"));
        HeldJobs::finish(m_jobs->running().back());
        QCOMPARE(label->text(), QStringLiteral("Opening a.mrd"));
        finishAll();
        QVERIFY(jobBar->isHidden());
    }
};

QTEST_MAIN(TestFileFlow)
#include "tst_FileFlow.moc"
