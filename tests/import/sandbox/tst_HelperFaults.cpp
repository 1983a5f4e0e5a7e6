#include "import/ChildProcesses.h"
#include "import/FakeHelper.h"
#include "import/HelperRun.h"
#include "import/JobRecord.h"

#include "orvane/app/files/ImportJob.h"

#include "meridane/scene/file/NxSceneWriter.h"

#include <QTest>

#include <csignal>
#include <random>
#include <vector>

namespace {

qsizetype residentPages()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() : 0;
}

std::string textOf(SceneJob& job)
{
    const NxRef<NxGroup> scene = job.takeScene();
    return scene ? NxSceneWriter::toText(scene.get()) : std::string();
}

} // namespace

/// The real helper, and some that are worse, while something goes wrong.
class TestHelperFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        HelperOptions options;
        options.program = helperProgram();
        ImportJob job(modelFile("crate.glb"), options);
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        m_crate = textOf(job);
        QVERIFY(!m_crate.empty());
    }

    void hitAtAnyMomentItGivesTheWholeSceneOrOneMessage_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<QString>("message");
        QTest::newRow("killed") << SIGKILL << QStringLiteral("the import helper was killed, maybe for want of memory");
        QTest::newRow("crashed") << SIGSEGV << QStringLiteral("the import helper crashed with signal 11");
        QTest::newRow("stopped") << SIGSTOP
                                 << QStringLiteral("the import helper did nothing for 0.5 s and was stopped");
    }

    void hitAtAnyMomentItGivesTheWholeSceneOrOneMessage()
    {
#if defined(__SANITIZE_ADDRESS__)
        if (QTest::currentDataTag() == QByteArray("crashed"))
            QSKIP("the address sanitizer reports that itself");
#endif
        QFETCH(int, signal);
        QFETCH(QString, message);
        const QString model = modelFile("crate.glb");
        std::mt19937 random(4);
        for (int hit = 0; hit < (signal == SIGSTOP ? 5 : 40); ++hit) {
            HelperOptions options;
            options.program = helperProgram();
            if (signal == SIGSTOP)
                options.patience = std::chrono::milliseconds(500);
            ImportJob job(model, options);
            const JobRecord record(job);
            job.start();
            // A random moment of what it does is what this test is about.
            QTest::qWait(std::uniform_int_distribution<int>(0, 40)(random));
            for (const pid_t pid : childProcesses())
                ::kill(pid, signal);
            QVERIFY(record.waitForEnd());
            QCOMPARE(record.ends(), 1);
            if (record.finished == 1)
                QCOMPARE(textOf(job), m_crate);
            else
                QCOMPARE(record.messages, QStringList(model + QStringLiteral(": ") + message));
        }
        QTRY_VERIFY(childProcesses().empty());
    }

    void beyondItsMemoryItGivesOneMessage()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the address sanitizer needs more address space than any limit leaves");
#endif
        const QString fileName = m_folder.filePath(QStringLiteral("large.obj"));
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        for (int index = 0; index < 200000; ++index)
            file.write("v 0.123456 " + QByteArray::number(index) + " 0\n");
        for (int index = 1; index < 199998; ++index)
            file.write("f " + QByteArray::number(index) + ' ' + QByteArray::number(index + 1) + " 1\n");
        file.close();
        HelperOptions options;
        options.program = helperProgram();
        options.memoryMiB = 64;
        ImportJob job(fileName, options);
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages,
            QStringList(QStringLiteral("out of memory: the model needs more than the 64 MiB that it may take")));
        QVERIFY(!job.takeScene());
    }

    void chatterTakesNoMemoryOfTheTool()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the address sanitizer holds on to memory that is given back");
#endif
        ImportJob job(QStringLiteral("box.obj"),
            fakeHelper(
                m_folder, "head -c 40000000 /dev/zero | tr '\\0' 'x' >&2; echo >&2; echo 'last words' >&2; exit 1"));
        const JobRecord record(job);
        const qsizetype before = residentPages();
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages, QStringList(QStringLiteral("last words")));
        const qsizetype mebibytes = (residentPages() - before) * 4096 / (1 << 20);
        QVERIFY2(mebibytes < 20, qPrintable(QString::number(mebibytes)));
    }

    void oneThatKeepsTheToolWaitingIsStopped_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::newRow("a whole scene, then nothing") << packedText("#mrd 1.0\n") + "; exec sleep 1000";
        QTest::newRow("half a scene, then nothing")
            << packedHead(1000) + "; echo '#mrd 1.0'; echo 'Group {'; exec sleep 1000";
        QTest::newRow("no output any more") << QByteArray("exec >&-; exec sleep 1000");
        QTest::newRow("messages without end") << QByteArray("while true; do echo busy >&2; sleep 0.05; done");
    }

    void oneThatKeepsTheToolWaitingIsStopped()
    {
        QFETCH(QByteArray, script);
        HelperOptions options = fakeHelper(m_folder, script);
        options.patience = std::chrono::milliseconds(500);
        ImportJob job(QStringLiteral("box.obj"), options);
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages,
            QStringList(QStringLiteral("box.obj: the import helper did nothing for 0.5 s and was stopped")));
        QVERIFY(!job.takeScene());
    }

private:
    QTemporaryDir m_folder;
    std::string m_crate; // the text of the scene that it is
};

QTEST_GUILESS_MAIN(TestHelperFaults)
#include "tst_HelperFaults.moc"
