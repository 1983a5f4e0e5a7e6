#include "import/FakeHelper.h"
#include "import/Gltf.h"
#include "import/HelperRun.h"
#include "import/JobRecord.h"

#include "orvane/app/files/ImportJob.h"

#include "meridane/base/errors/NxReadError.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

#include <csignal>

namespace {

HelperOptions realHelper()
{
    HelperOptions options;
    options.program = helperProgram();
    return options;
}

void countError(const NxError*, void* count)
{
    ++*static_cast<int*>(count);
}

} // namespace

class tst_ImportJob : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_errors = 0; }
    void cleanupTestCase();

    void aModelArrivesAsAScene();
    void itIsTheSceneThatTheHelperTellsAsText_data();
    void itIsTheSceneThatTheHelperTellsAsText();
    void theSceneIsGivenOnce();
    void aSceneIsReadWhileTheHelperEnds();
    void progressIsUnknownUntilTheSceneIsRead();
    void aPathMayHoldAnyCharacter();
    void theHelpersMessageIsTheJobs();
    void everyFailureOfTheHelperIsOneMessage_data();
    void everyFailureOfTheHelperIsOneMessage();
    void settingsOfTheUsersHeapGoOnToTheHelper();
    void theHelperIsToldWhomToEndWith();
    void theUsersMemoryLimitReachesTheHelper();
    void aMissingHelperIsReported();
    void aStoppedHelperIsKilled();
    void aHelperThatNeverEndsIsStopped();
    void aHelperThatFloodsIsStopped();
    void cancelKillsTheHelper();
    void cancelWhileTheSceneIsReadDropsIt();
    void cancelAfterTheEndDoesNothing();
    void destroyingAJobKillsTheHelper();

private:
    [[nodiscard]] bool processEnds(const QString& pidFile) const;

    QTemporaryDir m_folder;
    int m_errors = 0; // that were posted
    NxErrorHandler m_oldHandler = nullptr;
    void* m_oldData = nullptr;
};

void tst_ImportJob::initTestCase()
{
    m_oldHandler = NxReadError::getHandlerCallback();
    m_oldData = NxReadError::getHandlerData();
    NxReadError::setHandlerCallback(&countError, &m_errors);
}

void tst_ImportJob::cleanupTestCase()
{
    NxReadError::setHandlerCallback(m_oldHandler, m_oldData);
}

// The script writes its own process number there.
bool tst_ImportJob::processEnds(const QString& pidFile) const
{
    QFile file(pidFile);
    const int pid = file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
    return pid > 0 && QTest::qWaitFor([pid] { return ::kill(pid, 0) != 0; });
}

void tst_ImportJob::aModelArrivesAsAScene()
{
    ImportJob job(modelFile("crate.glb"), realHelper());
    const JobRecord record(job);
    job.start();
    QCOMPARE(record.ends(), 0);
    QVERIFY(record.waitForEnd());
    QCOMPARE(record.message(), QString());
    QCOMPARE(record.finished, 1);
    QCOMPARE(record.ends(), 1);
    QCOMPARE(m_errors, 0);
    const NxRef<NxGroup> scene = job.takeScene();
    QVERIFY(scene);
    QCOMPARE(scene->getNumChildren(), 3);
    QCOMPARE(scene->getChild(1)->getName(), VbString("stack"));
}

void tst_ImportJob::itIsTheSceneThatTheHelperTellsAsText_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("short lists") << modelFile("crate.glb");
    // A strip of triangles.
    QByteArray model;
    for (int index = 0; index < 1000; ++index)
        model += "v 0." + QByteArray::number(index) + ' ' + QByteArray::number(index) + " -0\n";
    for (int index = 1; index < 998; ++index)
        model += "f " + QByteArray::number(index) + ' ' + QByteArray::number(index + 1) + ' '
            + QByteArray::number(index + 2) + '\n';
    const QString fileName = m_folder.filePath(QStringLiteral("strip.obj"));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(model) == model.size());
    QTest::newRow("long lists") << fileName;

    QImage picture(40, 30, QImage::Format_RGB888);
    for (int pixel = 0; pixel < 1200; ++pixel)
        picture.setPixel(pixel % 40, pixel / 40, qRgb(pixel % 256, pixel / 7, 3));
    QBuffer png;
    QVERIFY(png.open(QIODevice::WriteOnly) && picture.save(&png, "png"));
    const QByteArray uri = gltf::dataUri("image/png", png.data());
    const QString textured = m_folder.filePath(QStringLiteral("textured.gltf"));
    QVERIFY(writeFile(textured,
        gltf::model(R"({"mesh": 0})",
            R"("scenes": [{"nodes": [0]}], "materials": [{"pbrMetallicRoughness": {"baseColorTexture": {"index": 0}}}],
            "textures": [{"source": 0}], "images": [{"name": "picture", "uri": )"
                + uri + "}],",
            R"(, "material": 0)")));
    QTest::newRow("an image") << textured;
}

void tst_ImportJob::itIsTheSceneThatTheHelperTellsAsText()
{
    QFETCH(QString, fileName);
    const HelperRun run = runHelper({QStringLiteral("--read"), fileName});
    QCOMPARE(run.error, QString());
    ImportJob job(fileName, realHelper());
    const JobRecord record(job);
    job.start();
    QVERIFY(record.waitForEnd());
    const NxRef<NxGroup> scene = job.takeScene();
    QVERIFY(scene);
    QVERIFY(NxSceneWriter::toText(scene.get()) == run.output);
    const bool hasImage = run.output.find(" image = 40 30 3 0x") != std::string::npos;
    QCOMPARE(hasImage, fileName.endsWith(QStringLiteral("textured.gltf")));
}

void tst_ImportJob::aSceneIsReadWhileTheHelperEnds()
{
    const QString readFile = m_folder.filePath(QStringLiteral("read"));
    ImportJob job(QStringLiteral("box.obj"),
        fakeHelper(m_folder,
            packedHead(9 + 10 * 100000) + "; echo '#mrd 1.0'; yes 'Group { }' | head -n 100000; while [ ! -e '"
                + QFile::encodeName(readFile) + "' ]; do sleep 0.01; done"));
    const JobRecord record(job);
    // The helper doesn't end ahead of the first slice.
    connect(&job, &FileJob::progressed, this, [&](double share) {
        QFile file(readFile);
        QVERIFY(share == -1 || file.open(QIODevice::WriteOnly));
    });
    job.start();
    QVERIFY(record.waitForEnd());
    QCOMPARE(record.message(), QString());
    QCOMPARE(record.finished, 1);
    const NxRef<NxGroup> scene = job.takeScene();
    QVERIFY(scene);
    QCOMPARE(scene->getNumChildren(), 100000);
}

void tst_ImportJob::theSceneIsGivenOnce()
{
    ImportJob job(modelFile("crate.obj"), realHelper());
    const JobRecord record(job);
    QVERIFY(!job.takeScene());
    job.start();
    QVERIFY(record.waitForEnd());
    QVERIFY(job.takeScene());
    QVERIFY(!job.takeScene());
}

void tst_ImportJob::progressIsUnknownUntilTheSceneIsRead()
{
    ImportJob job(modelFile("crate.glb"), realHelper());
    const JobRecord record(job);
    job.start();
    QVERIFY(record.waitForEnd());
    QCOMPARE(record.shares.first(), -1.0);
    QCOMPARE(record.shares.last(), 1.0);
    for (double share : record.shares)
        QVERIFY(share == -1 || (share >= 0 && share <= 1));
}

void tst_ImportJob::aPathMayHoldAnyCharacter()
{
    const QString fileName = m_folder.filePath(QStringLiteral("--write ä\"日本\n.glb"));
    QVERIFY(QFile::copy(modelFile("crate.glb"), fileName));
    ImportJob job(fileName, realHelper());
    const JobRecord record(job);
    job.start();
    QVERIFY(record.waitForEnd());
    QCOMPARE(record.message(), QString());
    QCOMPARE(record.finished, 1);
}

void tst_ImportJob::theHelpersMessageIsTheJobs()
{
    const QString fileName = m_folder.filePath(QStringLiteral("missing.obj"));
    ImportJob job(fileName, realHelper());
    const JobRecord record(job);
    job.start();
    QVERIFY(record.waitForEnd());
    QCOMPARE(record.messages, QStringList(fileName + QStringLiteral(": No such file or directory")));
    QCOMPARE(m_errors, 1);
    QVERIFY(!job.takeScene());
}

void tst_ImportJob::everyFailureOfTheHelperIsOneMessage_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("message"); // behind the file's name
    const QString noScene = QStringLiteral("the import helper gave something that is no scene: ");
    QTest::newRow("garbage") << QByteArray("echo garbage") << noScene;
    QTest::newRow("nothing") << QByteArray("exit 0") << noScene;
    QTest::newRow("zeros") << QByteArray("head -c 100000 /dev/zero") << noScene;
    QTest::newRow("a newer way of packing") << QByteArray("echo 'orvane-scene 3 0'") << noScene;
    QTest::newRow("a scene that isn't packed") << QByteArray("echo '#mrd 1.0'") << noScene;
    QTest::newRow("a newer format") << packedText("#mrd 9.0\n") << noScene;
    QTest::newRow("nodes in nodes without end")
        << packedHead(9 + 8 * 1000000) + "; echo '#mrd 1.0'; yes 'Group {' | head -n 1000000" << noScene;
    QTest::newRow("half a scene") << packedText("#mrd 1.0\nGroup {\n  Mesh {") << noScene;
    QTest::newRow("what is no scene, then nothing") << packedText("#mrd 1.0\nGroup {") + "; exec sleep 1000" << noScene;
    QTest::newRow("half a packed scene") << packedHead(1000) + "; echo '#mrd 1.0'" << noScene;
    QTest::newRow("more than it tells ahead") << packedText("#mrd 1.0\n") + "; echo" << noScene;
    QTest::newRow("more than it tells ahead, after a while")
        << packedText("#mrd 1.0\n") + "; sleep 0.2; echo" << noScene;
    QTest::newRow("far less than it tells ahead")
        << QByteArray("echo 'orvane-scene 2 18446744073709551000'") << noScene;
    QTest::newRow("half a scene, then a crash") << packedHead(1000) + "; printf '#mrd 1.0\\nGroup {'; kill -SEGV $$"
                                                << QStringLiteral("the import helper crashed with signal 11");
    QTest::newRow("a whole scene, then a crash")
        << packedText("#mrd 1.0\n") + "; kill -SEGV $$" << QStringLiteral("the import helper crashed with signal 11");
    QTest::newRow("a whole scene, a while, then a crash") << packedText("#mrd 1.0\n") + "; sleep 0.2; kill -SEGV $$"
                                                          << QStringLiteral("the import helper crashed with signal 11");
    QTest::newRow("a whole scene, then a failure") << packedText("#mrd 1.0\n")
            + "; exit 1" << QStringLiteral("the import helper ended with status 1 and didn't say why");
    QTest::newRow("aborted") << QByteArray("kill -ABRT $$")
                             << QStringLiteral("the import helper crashed with signal 6");
    QTest::newRow("killed") << QByteArray("kill -KILL $$")
                            << QStringLiteral("the import helper was killed, maybe for want of memory");
    QTest::newRow("too much processor time") << QByteArray(
        "kill -XCPU $$") << QStringLiteral("the import helper needed too much processor time and was stopped");
}

void tst_ImportJob::everyFailureOfTheHelperIsOneMessage()
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
    QCOMPARE(m_errors, 1);
}

void tst_ImportJob::settingsOfTheUsersHeapGoOnToTheHelper()
{
    qputenv("GLIBC_TUNABLES", "glibc.malloc.check=1:glibc.malloc.tcache_count=3");
    ImportJob job(QStringLiteral("box.obj"), fakeHelper(m_folder, "echo \"$GLIBC_TUNABLES\" >&2; exit 1"));
    const JobRecord record(job);
    job.start();
    qunsetenv("GLIBC_TUNABLES");
    QVERIFY(record.waitForEnd());
    // The last one counts.
    QVERIFY2(record.message().endsWith(QStringLiteral(":glibc.malloc.check=1:glibc.malloc.tcache_count=3")),
        qPrintable(record.message()));
}

void tst_ImportJob::theHelperIsToldWhomToEndWith()
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

void tst_ImportJob::theUsersMemoryLimitReachesTheHelper()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the address sanitizer needs more address space than any limit leaves");
#endif
    const QString fileName = m_folder.filePath(QStringLiteral("large.obj"));
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray("v 0 0 0\n").repeated(8 << 20)) > 0);
    file.close();
    qputenv("ORVANE_IMPORT_MEMORY", "100");
    ImportJob job(fileName, realHelper());
    const JobRecord record(job);
    job.start();
    qunsetenv("ORVANE_IMPORT_MEMORY");
    QVERIFY(record.waitForEnd());
    QCOMPARE(record.messages,
        QStringList(QStringLiteral("out of memory: the model needs more than the 100 MiB that it may take")));
}

void tst_ImportJob::aMissingHelperIsReported()
{
    // The one beside this program: there is none.
    ImportJob job(QStringLiteral("box.obj"));
    const JobRecord record(job);
    job.start();
    QCOMPARE(record.ends(), 0);
    QVERIFY(record.waitForEnd());
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/orvane-import");
    QVERIFY2(
        record.message().startsWith(QStringLiteral("box.obj: the import helper %1 can't be started: ").arg(program)),
        qPrintable(record.message()));
}

void tst_ImportJob::aStoppedHelperIsKilled()
{
    const QString pidFile = m_folder.filePath(QStringLiteral("pid"));
    HelperOptions options = fakeHelper(m_folder, "echo $$ > '" + QFile::encodeName(pidFile) + "'; kill -STOP $$");
    options.patience = std::chrono::milliseconds(500);
    ImportJob job(QStringLiteral("box.obj"), options);
    const JobRecord record(job);
    job.start();
    QVERIFY(record.waitForEnd());
    QCOMPARE(record.message(), QStringLiteral("box.obj: the import helper did nothing for 0.5 s and was stopped"));
    QVERIFY(processEnds(pidFile));
}

void tst_ImportJob::aHelperThatNeverEndsIsStopped()
{
    // It is never silent for long.
    HelperOptions options = fakeHelper(m_folder, "while true; do echo; sleep 0.05; done");
    options.timeLimit = std::chrono::milliseconds(500);
    ImportJob job(QStringLiteral("box.obj"), options);
    const JobRecord record(job);
    job.start();
    QVERIFY(record.waitForEnd());
    QCOMPARE(record.message(), QStringLiteral("box.obj: the import helper wasn't ready after 0.5 s and was stopped"));
}

void tst_ImportJob::aHelperThatFloodsIsStopped()
{
    HelperOptions options = fakeHelper(m_folder, "exec yes");
    options.outputLimit = 3 << 20;
    ImportJob job(QStringLiteral("box.obj"), options);
    const JobRecord record(job);
    job.start();
    QVERIFY(record.waitForEnd());
    QCOMPARE(record.message(), QStringLiteral("box.obj: the import helper wrote more than 3 MiB and was stopped"));
}

void tst_ImportJob::cancelKillsTheHelper()
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

void tst_ImportJob::cancelWhileTheSceneIsReadDropsIt()
{
    ImportJob job(QStringLiteral("box.obj"),
        fakeHelper(m_folder, packedHead(9 + 10 * 300000) + "; echo '#mrd 1.0'; yes 'Group { }' | head -n 300000"));
    const JobRecord record(job);
    connect(&job, &FileJob::progressed, this, [&] {
        if (record.shares.size() > 1)
            job.cancel();
    });
    job.start();
    QVERIFY(record.waitForEnd());
    QCOMPARE(record.cancelled, 1);
    QCOMPARE(record.ends(), 1);
    QVERIFY(!job.takeScene());
}

void tst_ImportJob::cancelAfterTheEndDoesNothing()
{
    ImportJob job(modelFile("crate.obj"), realHelper());
    const JobRecord record(job);
    job.start();
    QVERIFY(record.waitForEnd());
    job.cancel();
    QCoreApplication::processEvents();
    QCOMPARE(record.ends(), 1);
    QVERIFY(job.takeScene());
}

void tst_ImportJob::destroyingAJobKillsTheHelper()
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

QTEST_GUILESS_MAIN(tst_ImportJob)
#include "tst_ImportJob.moc"
