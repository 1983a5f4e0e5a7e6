#include "Patience.h"
#include "TestFiles.h"
#include "app/files/ImportJobCase.h"
#include "import/ChildProcesses.h"

#include <QScopeGuard>
#include <QTest>

#include <csignal>

/// What a job of an import does about a helper that fails, hangs or floods, and what becomes of the helper's process.
class TestImportJobFailures : public ImportJobCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_errors = 0; }

    void theHelpersMessageIsTheJobs()
    {
        const QString fileName = m_folder.filePath(QStringLiteral("missing.obj"));
        ImportJob job(fileName, realHelper());
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages, QStringList(fileName + QStringLiteral(": No such file or directory")));
        QCOMPARE(m_errors, 0); // the starter of a job reports its failure
        QVERIFY(!job.takeScene());
    }

    void everyFailureOfTheHelperIsOneMessage_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("message"); // behind the file's name
        const QString noScene = QStringLiteral("the import helper sent something that isn't a scene: ");
        QTest::newRow("garbage") << QByteArray("echo garbage") << noScene;
        QTest::newRow("nothing") << QByteArray("exit 0") << noScene;
        QTest::newRow("zeros") << QByteArray("head -c 100000 /dev/zero") << noScene;
        QTest::newRow("a newer way of packing") << QByteArray("echo 'orvane-scene 3 0'") << noScene;
        QTest::newRow("a scene that isn't packed") << QByteArray("echo '#mrd 1.0'") << noScene;
        QTest::newRow("a newer format") << packedText("#mrd 9.0\n") << noScene;
        QTest::newRow("nodes in nodes without end")
            << packedHead(9 + 8 * 1000000) + "; echo '#mrd 1.0'; yes 'Group {' | head -n 1000000" << noScene;
        QTest::newRow("half a scene") << packedText("#mrd 1.0\nGroup {\n  Mesh {") << noScene;
        QTest::newRow("what is no scene, then nothing")
            << packedText("#mrd 1.0\nGroup {") + "; exec sleep 1000" << noScene;
        QTest::newRow("half a packed scene") << packedHead(1000) + "; echo '#mrd 1.0'" << noScene;
        QTest::newRow("more than it tells ahead") << packedText("#mrd 1.0\n") + "; echo" << noScene;
        QTest::newRow("more than it tells ahead, after a while")
            << packedText("#mrd 1.0\n") + "; sleep 0.2; echo" << noScene;
        QTest::newRow("far less than it tells ahead")
            << QByteArray("echo 'orvane-scene 2 18446744073709551000'") << noScene;
        QTest::newRow("half a scene, then a crash") << packedHead(1000) + "; printf '#mrd 1.0\\nGroup {'; kill -SEGV $$"
                                                    << QStringLiteral("the import helper crashed with signal 11");
        QTest::newRow("a whole scene, then a crash") << packedText("#mrd 1.0\n") + "; kill -SEGV $$"
                                                     << QStringLiteral("the import helper crashed with signal 11");
        QTest::newRow("a whole scene, a while, then a crash") << packedText("#mrd 1.0\n")
                + "; sleep 0.2; kill -SEGV $$" << QStringLiteral("the import helper crashed with signal 11");
        QTest::newRow("a whole scene, then a failure") << packedText("#mrd 1.0\n")
                + "; exit 1" << QStringLiteral("the import helper ended with status 1 and didn't say why");
        QTest::newRow("aborted") << QByteArray("kill -ABRT $$")
                                 << QStringLiteral("the import helper crashed with signal 6");
        QTest::newRow("killed") << QByteArray("kill -KILL $$")
                                << QStringLiteral("the import helper was killed, maybe for want of memory");
        QTest::newRow("too much processor time") << QByteArray(
            "kill -XCPU $$") << QStringLiteral("the import helper needed too much processor time and was stopped");
    }

    void everyFailureOfTheHelperIsOneMessage()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, message);
        ImportJob job(QStringLiteral("box.obj"), fakeHelper(m_folder, script));
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.ends(), 1);
        QVERIFY2(record.message().startsWith(QStringLiteral("box.obj: ") + message), qPrintable(record.message()));
        QVERIFY(!record.message().contains(QLatin1Char('\n')));
        QVERIFY(!job.takeScene());
        QCOMPARE(m_errors, 0); // the starter of a job reports its failure
    }

    void settingsOfTheUsersHeapGoOnToTheHelper()
    {
        qputenv("GLIBC_TUNABLES", "glibc.malloc.check=1:glibc.malloc.tcache_count=3");
        const auto unset = qScopeGuard([] { qunsetenv("GLIBC_TUNABLES"); });
        ImportJob job(QStringLiteral("box.obj"), fakeHelper(m_folder, "echo \"$GLIBC_TUNABLES\" >&2; exit 1"));
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        // The last one counts.
        QVERIFY2(record.message().endsWith(QStringLiteral(":glibc.malloc.check=1:glibc.malloc.tcache_count=3")),
            qPrintable(record.message()));
    }

    void theHelperIsToldWhomToEndWith()
    {
        ImportJob job(m_folder.filePath(QStringLiteral("box.obj")), fakeHelper(m_folder, "echo \"$*\" >&2; exit 1"));
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.message(),
            QStringLiteral("--parent %1 --packed --read %2/box.obj")
                .arg(QCoreApplication::applicationPid())
                .arg(m_folder.path()));
    }

    void theUsersMemoryLimitReachesTheHelper()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the address sanitizer needs more address space than any limit leaves");
#endif
        const QString fileName = m_folder.filePath(QStringLiteral("large.obj"));
        writeFile(fileName, QByteArray("v 0 0 0\n").repeated(8 << 20));
        qputenv("ORVANE_IMPORT_MEMORY", "100");
        const auto unset = qScopeGuard([] { qunsetenv("ORVANE_IMPORT_MEMORY"); });
        ImportJob job(fileName, realHelper());
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages,
            QStringList(QStringLiteral("out of memory: the model needs more than the 100 MiB that it may take")));
    }

    void aMissingHelperIsReported()
    {
        // The one beside this program: there is none.
        ImportJob job(QStringLiteral("box.obj"));
        const JobRecord record(job);
        job.start();
        QCOMPARE(record.ends(), 0);
        QVERIFY(record.waitForEnd());
        const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-import");
        QVERIFY2(record.message().startsWith(
                     QStringLiteral("box.obj: the import helper %1 can't be started: ").arg(program)),
            qPrintable(record.message()));
    }

    void aStoppedHelperIsKilled()
    {
        HelperOptions options = fakeHelper(m_folder, "kill -STOP $$");
        options.patience = std::chrono::milliseconds(500);
        ImportJob job(QStringLiteral("box.obj"), options);
        const JobRecord record(job);
        job.start();
        QTRY_COMPARE(childProcesses().size(), std::size_t{1});
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.message(), QStringLiteral("box.obj: the import helper did nothing for 0.5 s and was stopped"));
        QTRY_VERIFY(childProcesses().empty());
    }

    void aHelperThatNeverEndsIsStopped()
    {
        // It is never silent for long.
        HelperOptions options = fakeHelper(m_folder, "while true; do echo; sleep 0.05; done");
        options.timeLimit = std::chrono::milliseconds(500);
        ImportJob job(QStringLiteral("box.obj"), options);
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(
            record.message(), QStringLiteral("box.obj: the import helper wasn't ready after 0.5 s and was stopped"));
    }

    void aHelperThatFloodsIsStopped()
    {
        HelperOptions options = fakeHelper(m_folder, "exec yes");
        options.outputLimit = 3 << 20;
        ImportJob job(QStringLiteral("box.obj"), options);
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.message(), QStringLiteral("box.obj: the import helper wrote more than 3 MiB and was stopped"));
    }

    void cancelKillsTheHelper()
    {
        const QString pidFile = m_folder.filePath(QStringLiteral("pid"));
        ImportJob job(QStringLiteral("box.obj"),
            fakeHelper(m_folder,
                "echo $$ > '" + QFile::encodeName(pidFile) + ".new'; mv '" + QFile::encodeName(pidFile) + ".new' '"
                    + QFile::encodeName(pidFile) + ".2'; exec sleep 1000"));
        const JobRecord record(job);
        job.start();
        QTRY_VERIFY(QFile::exists(pidFile + QStringLiteral(".2")));
        job.cancel();
        QCOMPARE(record.ends(), 0);
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.cancelled, 1);
        QCOMPARE(record.ends(), 1);
        QVERIFY(processEnds(pidFile + QStringLiteral(".2")));
    }

    void destroyingAJobKillsTheHelper()
    {
        const QString pidFile = m_folder.filePath(QStringLiteral("pid.3"));
        {
            ImportJob job(QStringLiteral("box.obj"),
                fakeHelper(m_folder, "echo $$ > '" + QFile::encodeName(pidFile) + "'; echo; exec sleep 1000"));
            job.start();
            QTRY_VERIFY(QFile(pidFile).size() > 0);
        }
        QVERIFY(processEnds(pidFile));
    }

private:
    // The script writes its own process number there.
    [[nodiscard]] bool processEnds(const QString& pidFile) const
    {
        const int pid = readFile(pidFile).trimmed().toInt();
        return pid > 0 && QTest::qWaitFor([pid] { return ::kill(pid, 0) != 0; }, testPatience);
    }
};

QTEST_GUILESS_MAIN(TestImportJobFailures)
#include "tst_ImportJobFailures.moc"
