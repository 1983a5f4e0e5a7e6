#include "TestFiles.h"
#include "app/AppScenes.h"
#include "app/StepClock.h"

#include "orvane/app/files/FileJobs.h"
#include "orvane/app/files/LoadJob.h"
#include "orvane/app/files/SaveJob.h"

#include "meridane/base/errors/NxReadError.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

int postedErrors = 0;

// By this process, in all.
qint64 bytesRead()
{
    QFile file(QStringLiteral("/proc/self/io"));
    return file.open(QIODevice::ReadOnly) ? file.readLine().mid(7).trimmed().toLongLong() : -1;
}

} // namespace

class TestFileJobs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_fileName = m_folder->filePath(QStringLiteral("scene.mrd"));
        postedErrors = 0;
        NxReadError::setHandlerCallback([](const NxError*, void*) { ++postedErrors; }, nullptr);
    }

    void cleanup() { NxReadError::setHandlerCallback(nullptr, nullptr); }

    void readsASceneFromTheEventLoop()
    {
        writeFile(m_fileName, AppScenes::robotText);
        LoadJob job(m_fileName);
        const QSignalSpy finished(&job, &FileJob::finished);
        job.start();
        QCOMPARE(finished.size(), 0);
        QTRY_COMPARE(finished.size(), 1);
        const NxRef<NxGroup> scene = job.takeScene();
        QVERIFY(scene);
        QCOMPARE(scene->getNumChildren(), 2);
        QVERIFY(!job.takeScene());
    }

    void knowsTheContentOfTheFile()
    {
        writeFile(m_fileName, AppScenes::robotText);
        LoadJob load(m_fileName);
        QVERIFY(!load.content());
        const QSignalSpy read(&load, &FileJob::finished);
        load.start();
        QTRY_COMPARE(read.size(), 1);
        const ReadScene scene = load.take();
        QVERIFY(scene.content == meridane::ContentHash::of(AppScenes::robotText));

        SaveJob save(scene.scene, m_folder->filePath(QStringLiteral("copy.mrd")));
        QVERIFY(!save.content());
        const QSignalSpy written(&save, &FileJob::finished);
        save.start();
        QTRY_COMPARE(written.size(), 1);
        QVERIFY(save.content() == meridane::ContentHash::of(readFile(save.fileName()).toStdString()));
    }

    void refusesWhatCannotBeRead_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("message");
        writeFile(m_folder->filePath(QStringLiteral("broken.mrd")), "#mrd 1.0\nGroup {\n  Mesh ?\n}\n");
        writeFile(m_folder->filePath(QStringLiteral("cut.mrd")), "#mrd 1.0\nGroup {\n");
        writeFile(m_folder->filePath(QStringLiteral("newer.mrd")), "#mrd 9.0\n");
        m_kept = std::move(m_folder);
        const auto path = [this](const char* name) { return m_kept->filePath(QLatin1String(name)); };
        QTest::newRow("missing file") << path("no.mrd") << QStringLiteral("no.mrd: ");
        QTest::newRow("folder") << m_kept->path() << QStringLiteral("directory");
        QTest::newRow("broken text") << path("broken.mrd") << QStringLiteral("broken.mrd:3:");
        QTest::newRow("text that is cut off") << path("cut.mrd") << QStringLiteral("cut.mrd:");
        QTest::newRow("another version") << path("newer.mrd") << QStringLiteral("newer.mrd:1:");
    }

    void refusesWhatCannotBeRead()
    {
        QFETCH(const QString, fileName);
        QFETCH(const QString, message);
        LoadJob job(fileName);
        const QSignalSpy failed(&job, &FileJob::failed);
        const QSignalSpy finished(&job, &FileJob::finished);
        job.start();
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY2(failed.front().front().toString().contains(message), qPrintable(failed.front().front().toString()));
        QCOMPARE(finished.size(), 0);
        QVERIFY(!job.takeScene());
        QCOMPARE(postedErrors, 0); // the starter of a job reports its failure
    }

    void looksAtTheFirstLineBeforeItReadsTheRest()
    {
        // It takes no room on the disk.
        QFile file(m_fileName);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64{3} << 30));
        LoadJob job(m_fileName);
        const QSignalSpy failed(&job, &FileJob::failed);
        const qint64 before = bytesRead();
        job.start();
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(bytesRead() - before < 20000000);
        const QString message = failed.front().front().toString();
        QVERIFY2(message.startsWith(m_fileName + QStringLiteral(":1:1: expected the first line of a scene file")),
            qPrintable(message));
        QCOMPARE(postedErrors, 0); // the starter of a job reports its failure
    }

    void refusesAFileThatIsTooLarge()
    {
        QFile file(m_fileName);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("#mrd 1.0\n") > 0);
        QVERIFY(file.resize(qint64{LoadJob::largestFile} + 1));
        file.close();
        LoadJob job(m_fileName);
        const QSignalSpy failed(&job, &FileJob::failed);
        const qint64 before = bytesRead();
        job.start();
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(bytesRead() - before < 20000000);
        QCOMPARE(failed.front().front().toString(),
            m_fileName + QStringLiteral(": the file has more than 4 GiB, which is the most that is read"));
    }

    void writesWhatItRead()
    {
        const NxRef<NxGroup> scene = AppScenes::robot();
        SaveJob job(scene, m_fileName);
        const QSignalSpy finished(&job, &FileJob::finished);
        job.start();
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(readFile(m_fileName), QByteArray::fromStdString(NxSceneWriter::toText(scene.get())));
    }

    void failsToWriteIntoAFolderThatIsMissing()
    {
        const QString fileName = m_folder->filePath(QStringLiteral("missing/scene.mrd"));
        SaveJob job(AppScenes::robot(), fileName);
        const QSignalSpy failed(&job, &FileJob::failed);
        job.start();
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(failed.front().front().toString().contains(fileName));
    }

    void keepsTheOldFileWhenItIsCancelled()
    {
        writeFile(m_fileName, "old");
        SaveJob job(AppScenes::wide(300000), m_fileName);
        const QSignalSpy cancelled(&job, &FileJob::cancelled);
        const QSignalSpy finished(&job, &FileJob::finished);
        connect(&job, &FileJob::progressed, &job, [&job] { job.cancel(); });
        job.start();
        QTRY_COMPARE(cancelled.size() + finished.size(), 1);
        QCOMPARE(cancelled.size(), 1);
        QCOMPARE(readFile(m_fileName), QByteArray("old"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void aJobThatIsCancelledTwiceEndsOnce_data()
    {
        QTest::addColumn<bool>("reads");
        QTest::newRow("load") << true;
        QTest::newRow("save") << false;
    }

    void aJobThatIsCancelledTwiceEndsOnce()
    {
        QFETCH(const bool, reads);
        writeFile(m_fileName, AppScenes::robotText);
        const std::unique_ptr<FileJob> job
            = reads ? orvane::makeLoadJob(m_fileName) : orvane::makeSaveJob(AppScenes::robot(), m_fileName, {});
        const QSignalSpy cancelled(job.get(), &FileJob::cancelled);
        const QSignalSpy finished(job.get(), &FileJob::finished);
        job->start();
        job->cancel();
        job->cancel();
        QCoreApplication::processEvents();
        job->cancel();
        QCoreApplication::processEvents();
        QCOMPARE(cancelled.size(), 1);
        QCOMPARE(finished.size(), 0);
    }

    void readsAndWritesALargeSceneInSlices()
    {
        constexpr int nodes = 30000;
        // Each slice takes 8 ms, and reads the clock once to begin with.
        constexpr int readingsPerSlice = 9;
        TurnCounter saving;
        SaveJob save(AppScenes::wide(nodes), m_fileName, {}, &StepClock::now);
        const QSignalSpy saved(&save, &FileJob::finished);
        const QSignalSpy progressed(&save, &FileJob::progressed);
        save.start();
        QTRY_COMPARE(saved.size(), 1);
        QVERIFY(progressed.size() > 1);
        QVERIFY2(saving.mostReadings() <= readingsPerSlice, qPrintable(QString::number(saving.mostReadings())));
        QVERIFY2(saving.turns() > nodes / 1000, qPrintable(QString::number(saving.turns())));
        TurnCounter loading;
        LoadJob load(m_fileName, &StepClock::now);
        const QSignalSpy loaded(&load, &FileJob::finished);
        load.start();
        QTRY_COMPARE(loaded.size(), 1);
        QVERIFY2(loading.mostReadings() <= readingsPerSlice, qPrintable(QString::number(loading.mostReadings())));
        QVERIFY2(loading.turns() > nodes / 1000, qPrintable(QString::number(loading.turns())));
        QCOMPARE(load.takeScene()->getChild(0)->getChildren().size(), std::size_t{nodes});
    }

    void choosesTheJobByTheFileName()
    {
        QVERIFY(dynamic_cast<LoadJob*>(orvane::makeLoadJob(QStringLiteral("a.MRD")).get()) != nullptr);
        QVERIFY(dynamic_cast<LoadJob*>(orvane::makeLoadJob(QStringLiteral("a.glb")).get()) == nullptr);
        QVERIFY(dynamic_cast<SaveJob*>(orvane::makeSaveJob(AppScenes::robot(), QStringLiteral("a.mrd"), {}).get()));
        QVERIFY(!dynamic_cast<SaveJob*>(orvane::makeSaveJob(AppScenes::robot(), QStringLiteral("a.obj"), {}).get()));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QTemporaryDir> m_kept; // holds the files that rows name
    QString m_fileName;
};

QTEST_GUILESS_MAIN(TestFileJobs)
#include "tst_FileJobs.moc"
