#include "Patience.h"
#include "TestFiles.h"
#include "app/AppScenes.h"
#include "app/SaveScene.h"
#include "base/FileSizeLimit.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <random>

#include <unistd.h>

namespace {

QByteArray textOf(const NxRef<NxGroup>& scene)
{
    return QByteArray::fromStdString(NxSceneWriter::toText(scene.get()));
}

} // namespace

/// Saving while something goes wrong: the file is the old one or the new one, whole.
class TestSaveFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_fileName = m_folder->filePath(QStringLiteral("scene.mrd"));
    }

    // ORVANE_TEST_KILLS gives the number of kills; `script/faults` kills a thousand times.
    void killedAtAnyMomentTheFileIsOldOrNew()
    {
        const QByteArray first = textOf(SaveScene::named("first"));
        const QByteArray second = textOf(SaveScene::named("second"));
        bool given = false;
        const int kills = qEnvironmentVariableIntValue("ORVANE_TEST_KILLS", &given);
        std::mt19937 random(9);
        int firsts = 0;
        int duringASave = 0;
        writeFile(m_fileName, second);
        for (int kill = 0; kill < (given ? kills : 50); ++kill) {
            QProcess process;
            process.start(QStringLiteral(SAVE_UNDER_FAULT), {m_fileName, QStringLiteral("loop")});
            QVERIFY(process.waitForReadyRead(testPatience));
            // A random moment of what it does is what this test is about.
            ::usleep(std::uniform_int_distribution<unsigned>(0, 20000)(random));
            QCOMPARE(process.state(), QProcess::Running);
            process.kill();
            QVERIFY(process.waitForFinished(testPatience));
            QCOMPARE(process.exitCode(), SIGKILL);
            const QByteArray content = readFile(m_fileName);
            QVERIFY2(content == first || content == second, qPrintable(QStringLiteral("kill %1").arg(kill)));
            firsts += content == first ? 1 : 0;
            // What the last one left has been removed by the first save of this one.
            QVERIFY(entries().size() <= 2);
            duringASave += entries().size() == 2 ? 1 : 0;
        }
        qInfo("%d kills, %d of them while a file was written; the first scene was found %d times", given ? kills : 50,
            duringASave, firsts);
        QVERIFY(duringASave > 0);
        QVERIFY(!SaveScene::save(SaveScene::named("first"), m_fileName));
        QCOMPARE(entries(), QStringList(QStringLiteral("scene.mrd")));
    }

    void whatAKilledProcessLeftIsRemovedByTheNextSave()
    {
        // Two files that are being written at once, and one that nobody will finish.
        meridane::FileReplacer running;
        QVERIFY(!running.open(m_fileName.toStdString()));
        QVERIFY(!SaveScene::save(AppScenes::robot(), m_fileName));
        const QStringList withHidden = entries();
        QCOMPARE(withHidden.size(), 2);
        writeFile(m_folder->filePath(QString(withHidden[0]).replace(QStringLiteral("-0."), QStringLiteral("-1."))),
            "the beginning of a scene");
        QCOMPARE(entries().size(), 3);
        QVERIFY(!SaveScene::save(AppScenes::robot(), m_fileName));
        QCOMPARE(entries(), withHidden);
        QVERIFY(!running.write("x", 1));
        QVERIFY(!running.commit());
        QCOMPARE(entries(), QStringList(QStringLiteral("scene.mrd")));
        QCOMPARE(readFile(m_fileName), QByteArray("x"));
    }

    void aFileSystemThatRefusesKeepsTheOldFile_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("message");
        QTest::newRow("full") << QStringLiteral("size=8k") << QStringLiteral("No space left on device");
        QTest::newRow("full of files") << QStringLiteral("nr_inodes=2") << QStringLiteral("No space left on device");
        QTest::newRow("read only") << QStringLiteral("size=1m,then-ro") << QStringLiteral("Read-only file system");
    }

    void aFileSystemThatRefusesKeepsTheOldFile()
    {
        QFETCH(QString, options);
        QFETCH(QString, message);
        QProcess process;
        process.start(QStringLiteral(SAVE_UNDER_FAULT), {m_folder->path(), options});
        QVERIFY(process.waitForFinished(testPatience));
        if (process.exitCode() == 77)
            QSKIP("this machine lets nobody mount a file system");
        QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts),
            (QStringList{m_fileName + QStringLiteral(": ") + message, QStringLiteral("whole"), QStringLiteral("1")}));
    }

    void aWriteErrorKeepsTheOldFile_data()
    {
        QTest::addColumn<rlim_t>("limit");
        QTest::newRow("at once") << rlim_t{0};
        QTest::newRow("in the middle") << rlim_t{5000};
    }

    void aWriteErrorKeepsTheOldFile()
    {
        QFETCH(rlim_t, limit);
        writeFile(m_fileName, AppScenes::robotText);
        std::optional<QString> failure;
        {
            const FileSizeLimit files(limit);
            failure = SaveScene::save(SaveScene::named("second"), m_fileName);
        }
        QCOMPARE(failure.value_or(QStringLiteral("no failure")), m_fileName + QStringLiteral(": File too large"));
        QCOMPARE(readFile(m_fileName), QByteArray(AppScenes::robotText));
        QCOMPARE(entries(), QStringList(QStringLiteral("scene.mrd")));
    }

private:
    [[nodiscard]] QStringList entries() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_fileName;
};

QTEST_GUILESS_MAIN(TestSaveFaults)
#include "tst_SaveFaults.moc"
