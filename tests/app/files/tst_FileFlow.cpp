#include "app/AppScenes.h"
#include "app/files/HeldJobs.h"

#include "orvane/app/files/FileFlow.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/scene/NodeCommands.h"
#include "orvane/app/scene/Session.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include <array>
#include <memory>

// What becomes of each request while a job runs or a dialog is open. The jobs are held by the test.
class TestFileFlow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_session = std::make_unique<Session>(AppSettings::Mode::None);
        m_window = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(m_window.get());
        m_messages = new MessageBar(m_window.get());
        auto* jobBar = new JobBar(m_window.get());
        layout->addWidget(m_messages);
        layout->addWidget(jobBar);
        m_recent = new RecentFiles(m_session->settings(), m_window.get());
        m_jobs = std::make_unique<HeldJobs>();
        m_flow = new FileFlow(*m_session, *m_recent, *m_messages, *jobBar, m_window.get(), m_jobs->makers());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        document().open(AppScenes::read("#mrd 1.0\nGroup \"old\" {}\n"), path("old.mrd"));
        connect(&document(), &SceneDocument::sceneChanged, m_window.get(), [this] { note("open ", sceneName()); });
    }

    void cleanup()
    {
        m_session->shutDown();
        m_window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_session.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    // The table in docs/robustness.md: a row for each of its cells.
    void aRequestDuringAJobIsCarriedOutOrReported_data();
    void aRequestDuringAJobIsCarriedOutOrReported();

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
        m_flow->open(path("a.mrd"), [&outcomes](const QString& outcome) { outcomes += outcome; });
        if (end == 0)
            HeldJobs::finish(m_jobs->running().front());
        else if (end == 1)
            Q_EMIT m_jobs->running().front()->failed(QStringLiteral("broken"));
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
        m_flow->open(path("a.mrd"), [&outcomes](const QString& outcome) { outcomes += outcome; });
        m_flow->import(path("b.mrd"));
        m_flow->leaveForQuit([] { QFAIL("the window was closed"); });
        if (cancel)
            m_window->findChild<JobBar*>()->cancel();
        else
            Q_EMIT m_jobs->running().front()->failed(QStringLiteral("disk full"));
        finishAll();
        QCOMPARE(m_jobs->log(), QStringList({QStringLiteral("write [old] to old.mrd"), QStringLiteral("read b.mrd")}));
        QCOMPARE(sceneName(), QStringLiteral("[old+b]"));
        QCOMPARE(outcomes, QStringList(QStringLiteral("old.mrd wasn't written.")));
        QVERIFY(
            m_messages->texts().contains(QStringLiteral("Not done: opening a.mrd, quitting. old.mrd wasn't written.")));
        QCOMPARE(m_messages->texts().contains(QStringLiteral("disk full")), !cancel);
    }

    void aFailedSaveFromTheQuestionLeavesEverythingOpen()
    {
        edit();
        m_flow->closeScene();
        answerQuestion(QMessageBox::Save);
        QTRY_COMPARE(m_jobs->running().size(), std::size_t{1});
        Q_EMIT m_jobs->running().front()->failed(QStringLiteral("disk full"));
        finishAll();
        QCOMPARE(sceneName(), QStringLiteral("[old+edit]"));
        QVERIFY(document().isModified());
        // What was to follow is forgotten: the next save closes nothing.
        m_flow->save();
        finishAll();
        QCOMPARE(sceneName(), QStringLiteral("[old+edit]"));
    }

    void theMessageOfAFailedSaveOutlivesAnOpen()
    {
        m_flow->open(path("a.mrd"));
        m_flow->save();
        Q_EMIT m_jobs->running().back()->failed(QStringLiteral("disk full"));
        finishAll();
        QCOMPARE(sceneName(), QStringLiteral("[a]"));
        QCOMPARE(m_messages->texts(), QStringList(QStringLiteral("disk full")));
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

private:
    using Kind = FileRequest::Kind;

    static const char* name(Kind kind)
    {
        static constexpr std::array<const char*, 8> names{
            "new", "open", "add", "save", "save as", "export", "close", "quit"};
        return names.at(static_cast<std::size_t>(kind));
    }

    void ask(Kind kind, const char* file)
    {
        switch (kind) {
        case Kind::New:
            return m_flow->newScene();
        case Kind::Open:
            return m_flow->open(path(file));
        case Kind::Add:
            return m_flow->import(path(file));
        case Kind::Save:
            return m_flow->save();
        case Kind::SaveAs:
            return m_flow->saveAs();
        case Kind::Export:
            return m_flow->exportTo(path("out.glb"));
        case Kind::Close:
            return m_flow->closeScene();
        case Kind::Quit:
            return m_flow->leaveForQuit([this] {
                note("quit", {});
                m_flow->abandon();
            });
        }
    }

    void edit()
    {
        const NxRef<NxGroup> node(new NxGroup);
        node->setName(VbString("edit"));
        m_session->services().pushCommand(new AddNodeCommand(document().scene(), node, m_session->disposal()));
    }

    void choose(QFileDialog* dialog, const char* file)
    {
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        // Set rather than typed, since the completion of names would take the keys that follow.
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path(file));
        const auto* buttons = dialog->findChild<QDialogButtonBox*>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Save), Qt::LeftButton);
    }

    QMessageBox* question() { return m_window->findChild<QMessageBox*>(QStringLiteral("saveQuestion")); }

    void answerQuestion(int answer)
    {
        QVERIFY(question() != nullptr);
        QTest::mouseClick(question()->button(static_cast<QMessageBox::StandardButton>(answer)), Qt::LeftButton);
    }

    // Lets what waits in the event loop run.
    static void settle()
    {
        QEventLoop loop;
        while (loop.processEvents()) { }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // Lets the jobs end in the order in which they were started, those too that come up meanwhile.
    void finishAll()
    {
        settle();
        while (!m_jobs->running().empty()) {
            HeldJobs::finish(m_jobs->running().front());
            settle();
        }
    }

    void note(const char* what, const QString& name) { m_jobs->log() += QLatin1String(what) + name; }
    [[nodiscard]] QString sceneName() { return HeldJobs::nameOf(document().scene()); }
    SceneDocument& document() { return m_session->document(); }
    [[nodiscard]] QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<HeldJobs> m_jobs;
    MessageBar* m_messages = nullptr;
    RecentFiles* m_recent = nullptr;
    FileFlow* m_flow = nullptr;
};

void TestFileFlow::aRequestDuringAJobIsCarriedOutOrReported_data()
{
    QTest::addColumn<Kind>("job");
    QTest::addColumn<Kind>("request");
    QTest::addColumn<QString>("expected");
    const auto row = [](Kind job, Kind request, const QByteArray& expected) {
        QTest::addRow("%s, %s", name(job), name(request)) << job << request << QString::fromLatin1(expected);
    };
    // The last word is the scene that is open when all jobs have ended.
    row(Kind::Open, Kind::Open, "read a.mrd; read b.mrd; open [b]; Not done: opening a.mrd. b.mrd is opened instead.");
    row(Kind::Open, Kind::Add, "read a.mrd; open [a]; Not done: adding b.mrd. a.mrd is being opened.");
    row(Kind::Open, Kind::Save, "read a.mrd; write [old] to old.mrd; open [a]");
    row(Kind::Open, Kind::SaveAs, "read a.mrd; write [old] to chosen.mrd; open [a]");
    row(Kind::Open, Kind::Export, "read a.mrd; write [old] to out.glb; open [a]; Exported to out.glb.");
    row(Kind::Open, Kind::Close, "read a.mrd; open nothing; Not done: opening a.mrd. The scene was closed.");
    row(Kind::Open, Kind::New, "read a.mrd; open []; Not done: opening a.mrd. A new scene was made instead.");
    row(Kind::Open, Kind::Quit, "read a.mrd; quit");

    row(Kind::Add, Kind::Open, "read a.mrd; read b.mrd; open [b]; Not done: adding a.mrd. b.mrd is opened instead.");
    row(Kind::Add, Kind::Add, "read a.mrd; read b.mrd; now [old+a+b]");
    row(Kind::Add, Kind::Save, "read a.mrd; write [old] to old.mrd; now [old+a]");
    row(Kind::Add, Kind::SaveAs, "read a.mrd; write [old] to chosen.mrd; now [old+a]");
    row(Kind::Add, Kind::Export, "read a.mrd; write [old] to out.glb; now [old+a]; Exported to out.glb.");
    row(Kind::Add, Kind::Close, "read a.mrd; open nothing; Not done: adding a.mrd. The scene was closed.");
    row(Kind::Add, Kind::New, "read a.mrd; open []; Not done: adding a.mrd. A new scene was made instead.");
    row(Kind::Add, Kind::Quit, "read a.mrd; quit; now [old]");

    for (const Kind job : {Kind::Save, Kind::Export}) {
        const QByteArray writes = job == Kind::Save ? "write [old] to old.mrd" : "write [old] to out.glb";
        const QByteArray exported = job == Kind::Export ? "; Exported to out.glb." : "";
        row(job, Kind::Open, writes + "; read b.mrd; open [b]" + exported);
        row(job, Kind::Add, writes + "; read b.mrd; now [old+b]" + exported);
        row(job, Kind::Save, writes + "; write [old] to old.mrd");
        row(job, Kind::SaveAs, writes + "; write [old] to chosen.mrd");
        row(job, Kind::Export, writes + "; write [old] to out.glb; Exported to out.glb.");
        row(job, Kind::Close, writes + "; open nothing" + exported);
        row(job, Kind::New, writes + "; open []" + exported);
        row(job, Kind::Quit, writes + "; quit" + exported);
    }
}

void TestFileFlow::aRequestDuringAJobIsCarriedOutOrReported()
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

QTEST_MAIN(TestFileFlow)
#include "tst_FileFlow.moc"
