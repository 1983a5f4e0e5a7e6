#include "app/recovery/RecoveryCase.h"
#include "app/structure/RandomStructure.h"
#include "base/FileSizeLimit.h"

#include "orvane/app/files/SaveJob.h"
#include "orvane/app/scene/UpdateSceneCommand.h"

#include "meridane/scene/nodes/NxMesh.h"

#include <QFileSystemWatcher>

#define TRY_CRASH(expected) QTRY_COMPARE_WITH_TIMEOUT(textAfterCrash(), expected, testPatience)

namespace {

const QString robot = QStringLiteral("robot.mrd");

} // namespace

/// What a crash leaves of the open scene.
class TestSceneRecovery : public RecoveryCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { startScene(); }
    void cleanup()
    {
        endScene();
        // Whatever a test did, the scene was closed properly.
        QCOMPARE(files() + unfinishedFiles(), QStringList());
    }

    void changesBeginFromTheFile()
    {
        openFile(robot, AppScenes::robotText);
        rename("/robot/arm", "leg");
        TRY_CRASH(text());
        // The file of the scene is needed, and must be the same.
        writeFile(path(robot), "#mrd 1.0\n");
        QCOMPARE(textAfterCrash(), std::string("[its file has changed since then]"));
        QVERIFY(QFile::remove(path(robot)));
        QCOMPARE(textAfterCrash(), '[' + path(robot).toStdString() + ": No such file or directory]");
    }

    void aSceneWithoutChangesLeavesNothing()
    {
        openFile(robot, AppScenes::robotText);
        rename("/robot/arm", "leg");
        QTRY_COMPARE_WITH_TIMEOUT(files().size(), 1, testPatience);
        m_services->undo();
        TRY_CRASH(std::string("none"));
        m_services->redo();
        TRY_CRASH(text());
        m_document->close();
        QTRY_COMPARE_WITH_TIMEOUT(files(), QStringList(), testPatience);
    }

    void everyStepIsThere()
    {
        openFile(robot, AppScenes::robotText);
        for (const char* name : {"a", "b", "c", "d"}) {
            rename(m_document->scene()->getChild(0), name);
            TRY_CRASH(text());
        }
        m_services->undo();
        TRY_CRASH(text());
        m_services->undo();
        m_services->undo();
        m_services->redo();
        TRY_CRASH(text());
    }

    void aSceneWithoutAFileIsThereAsAWhole()
    {
        m_document->newScene();
        NxRef<NxNode> mesh(new NxMesh);
        m_services->pushCommand(new AddNodeCommand(m_document->scene(), mesh, *m_disposal));
        TRY_CRASH(text());
        m_document->open(AppScenes::robot(), path(QStringLiteral("robot.glb")));
        rename("/sun", "moon");
        TRY_CRASH(text());
    }

    void aSaveBeginsANewFile()
    {
        openFile(robot, AppScenes::robotText);
        rename("/sun", "moon");
        TRY_CRASH(text());
        save(robot);
        QTRY_COMPARE_WITH_TIMEOUT(files(), QStringList(), testPatience);
        rename("/moon", "star");
        TRY_CRASH(text());
        // Undone, it is the scene that was saved.
        m_services->undo();
        TRY_CRASH(std::string("none"));
        // And undone further, changes from it.
        m_services->undo();
        TRY_CRASH(text());
    }

    void nodesThatWereAddedAndRemovedAreKnownAfterASave()
    {
        openFile(robot, AppScenes::robotText);
        NxGroup* const scene = m_document->scene();
        pushStep(NodeEdits(*scene).remove({{{scene}, {}, {0}}}));
        m_services->pushCommand(new AddNodeCommand(scene, NxRef<NxNode>(new NxMesh), *m_disposal));
        save(robot);
        rename(scene->getChild(1), "last");
        m_services->undo();
        rename("/sun", "moon");
        rename(scene->getChild(1), "added");
        TRY_CRASH(text());
        for (int i = 0; i < 4; ++i)
            m_services->undo();
        QCOMPARE(text(), NxSceneWriter::toText(AppScenes::robot().get()));
        TRY_CRASH(text());
    }

    void aFileInAnotherFolderIsNotTheSameScene()
    {
        // Relative paths in it count from that folder, so they differ from those in the scene.
        openFile(robot, "#mrd 1.0\nTexture \"wood\" {\n  filePath = \"wood.png\"\n}\n");
        QVERIFY(QDir().mkdir(path(QStringLiteral("other"))));
        save(QStringLiteral("other/robot.mrd"));
        rename("/wood", "oak");
        TRY_CRASH(text());
        QVERIFY(QFile::remove(path(QStringLiteral("other/robot.mrd"))));
        TRY_CRASH(text());
    }

    void aFileThatChangesIsNotNeededAnyMore()
    {
        openFile(robot, AppScenes::robotText);
        rename("/robot/arm", "leg");
        TRY_CRASH(text());
        writeFile(path(robot), "#mrd 1.0\n");
        m_recovery->leaveFile();
        TRY_CRASH(text());
        rename("/robot/leg", "wheel");
        TRY_CRASH(text());
        QCOMPARE(files().size(), 1);
    }

    void changesOfTheStructureAreThere()
    {
        for (unsigned int seed = 0; seed < 6; ++seed) {
            RandomStructure random(seed);
            openFile(robot, ("#mrd 1.0\n" + random.statements()).c_str());
            const std::string opened = text();
            for (int i = 0; i < 12 && m_document->scene()->getNumChildren() > 0; ++i) {
                const int what = random.number(10);
                if (what == 0) {
                    m_services->undo();
                } else if (what == 1) {
                    m_services->redo();
                } else {
                    RandomStructure::Change change = random.change(*m_document->scene());
                    if (!change.edit || change.edit.value().changes.isEmpty())
                        continue;
                    pushStep(std::move(change.edit));
                }
                AppScenes::runSensors();
                TRY_CRASH(text() == opened ? std::string("none") : text());
            }
            m_document->close();
            QTRY_COMPARE_WITH_TIMEOUT(files(), QStringList(), testPatience);
        }
    }

    void aStepThatGoesOnIsThere()
    {
        openFile(robot, AppScenes::robotText);
        NxField* const field = NxScenePath::find(m_document->scene(), "/sun.intensity").field;
        QVERIFY(field != nullptr);
        field->set(VbString("0.25")); // nobody has ended the step
        TRY_CRASH(text());
        field->set(VbString("0.75"));
        TRY_CRASH(text());
    }

    void aSceneThatWasRecoveredTakesOverTheFile()
    {
        openFile(robot, AppScenes::robotText);
        rename("/robot/arm", "leg");
        TRY_CRASH(text());
        const std::string edited = text();
        // As another program would find it, and open it.
        QDir().mkpath(recoveryFolder().path());
        const QString left = recoveryFolder().path() + QStringLiteral("/left.recovery");
        QVERIFY(QFile::copy(files().front(), left));
        m_document->close();
        auto file = LockedFile::lock(left);
        QVERIFY(file != nullptr);
        RecoverJob job(left, robot);
        const QSignalSpy finished(&job, &FileJob::finished);
        job.start();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, testPatience);
        const ReadScene read = job.take();
        QVERIFY(read.content == meridane::ContentHash::of(AppScenes::robotText));
        m_document->openUnsaved(read.journal, path(robot), read.content);
        m_recovery->replaceFile(std::move(file));
        QVERIFY(m_document->isModified());
        QCOMPARE(text(), edited);
        // A new file takes its place, which has the whole scene.
        QVERIFY(QFile::remove(path(robot)));
        TRY_CRASH(edited);
        QCOMPARE(files(), QStringList(left));
        rename("/sun", "moon");
        TRY_CRASH(text());
        m_services->undo();
        TRY_CRASH(edited);
    }

    void twoProgramsKeepFilesOfTheirOwn()
    {
        openFile(robot, AppScenes::robotText);
        rename("/robot/arm", "leg");
        TRY_CRASH(text());
        // Another program looks for abandoned files, and finds none.
        RecoveryScan scan;
        const QSignalSpy found(&scan, &RecoveryScan::found);
        const QSignalSpy finished(&scan, &RecoveryScan::finished);
        scan.start(recoveryFolder());
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, testPatience);
        QCOMPARE(found.size(), 0);
        QCOMPARE(textAfterCrash(), text());
    }

    void aFileThatBecomesLongIsReplaced()
    {
        endScene();
        startScene({.longest = 1});
        openFile(robot, AppScenes::robotText);
        for (int i = 0; i < 8; ++i) {
            rename(m_document->scene()->getChild(0), i % 2 == 0 ? "machine" : "robot");
            TRY_CRASH(text());
        }
        // By one that has the whole scene.
        QVERIFY(QFile::remove(path(robot)));
        TRY_CRASH(text());
    }

    void aFullDiskIsOneMessageAndWorkGoesOn()
    {
        endScene();
        startScene({.retry = std::chrono::milliseconds(10)});
        const QSignalSpy failed(m_recovery.get(), &SceneRecovery::failed);
        const QSignalSpy works(m_recovery.get(), &SceneRecovery::works);
        openFile(robot, AppScenes::robotText);
        rename("/robot/arm", "leg");
        TRY_CRASH(text());
        const QByteArray kept = readFile(files().front());
        {
            const FileSizeLimit limit(10);
            rename("/robot/leg", "wheel");
            QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, testPatience);
            QVERIFY2(failed.front().front().toString().endsWith(QStringLiteral(": File too large")),
                qPrintable(failed.front().front().toString()));
            rename("/sun", "moon");
            // Some attempts later the message isn't repeated, and the file has the last state that was written.
            QFileSystemWatcher watcher({recoveryFolder().path()});
            const QSignalSpy attempts(&watcher, &QFileSystemWatcher::directoryChanged);
            QTRY_VERIFY_WITH_TIMEOUT(attempts.size() > 5, testPatience);
            QCOMPARE(readFile(files().front()), kept);
            QCOMPARE(failed.size(), 1);
            QCOMPARE(works.size(), 0);
        }
        TRY_CRASH(text());
        QTRY_COMPARE_WITH_TIMEOUT(works.size(), 1, testPatience);
        QCOMPARE(failed.size(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(files().size(), 1, testPatience);
    }

    void aFolderThatCannotBeMadeIsAMessage()
    {
        writeFile(path(QStringLiteral("recovery")), "in the way");
        const QSignalSpy failed(m_recovery.get(), &SceneRecovery::failed);
        openFile(robot, AppScenes::robotText);
        rename("/sun", "moon");
        QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, testPatience);
        QCOMPARE(text().find("sun"), std::string::npos);
    }

private:
    /// Makes a change of the structure, as the actions of the tree do.
    void pushStep(MadeEdit edit)
    {
        QVERIFY2(edit, qPrintable(edit.error()));
        NodeEdit made = std::move(edit).value();
        m_services->pushStep(new UpdateSceneCommand(std::move(made.changes), UpdateSceneCommand::Undo::ByHistory,
                                 *m_disposal, std::make_shared<bool>(true)),
            made.label);
    }

    /// Writes the scene to that file, as File > Save does.
    void save(const QString& name)
    {
        SaveJob job(NxRef<NxGroup>(m_document->scene()), path(name), m_document->pathFolder());
        const QSignalSpy finished(&job, &FileJob::finished);
        job.start();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, testPatience);
        m_document->setSaved(path(name), job.content());
    }
};

QTEST_MAIN(TestSceneRecovery)
#include "tst_SceneRecovery.moc"
