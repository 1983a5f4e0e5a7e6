#include "TestFiles.h"
#include "import/FakeHelper.h"
#include "import/HelperRun.h"
#include "import/JobRecord.h"

#include "orvane/app/files/ExportJob.h"
#include "orvane/app/files/ImportJob.h"

#include <QDir>
#include <QTest>

namespace {

HelperOptions realHelper()
{
    HelperOptions options;
    options.program = helperProgram();
    return options;
}

NxRef<NxGroup> scene()
{
    std::string error;
    return sceneOf("#mrd 1.0\nTransform \"a\" { Material \"red\" { diffuseColor = 1 0 0 }\n"
                   "Mesh \"m\" { positions = [0 0 0, 1 0 0, 1 1 0] } }\n",
        error);
}

/// Three squares: with an image, with a file that is called like one, and with two images more, of which one is the
/// first once more.
NxRef<NxGroup> texturedScene()
{
    const auto square = [](const char* texture) {
        return std::string("Group { Material \"paint\" { }\nTexture { ") + texture
            + " }\nMesh { positions = [0 0 0, 1 0 0, 1 1 0]; textureCoordinates = [0 0, 1 0, 1 1] } }\n";
    };
    std::string error;
    return sceneOf("#mrd 1.0\n" + square("image = 1 1 3 0xff0000") + square("filePath = \"box_0.png\"")
            + square("image = 1 1 3 0x00ff00") + square("image = 1 1 3 0xff0000"),
        error);
}

// Several times what fits in a pipe and in the job's own store.
NxRef<NxGroup> makeLargeScene()
{
    std::string text = "#mrd 1.0\n";
    for (int index = 0; index < 120; ++index) {
        text += "Transform \"t" + std::to_string(index) + "\" { Mesh { positions = [0 0 0";
        for (int point = 1; point < 3000; ++point)
            text += ", " + std::to_string(point) + ".123 " + std::to_string(index) + ".456 0";
        text += "] } }\n";
    }
    std::string error;
    return sceneOf(text, error);
}

const NxRef<NxGroup>& largeScene()
{
    static const NxRef<NxGroup> scene = makeLargeScene();
    return scene;
}

} // namespace

class TestExportJob : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_models = std::make_unique<QTemporaryDir>(); }

    void allFilesOfAModelAreWritten()
    {
        ExportJob job(scene(), path("träger.obj"), realHelper());
        const JobRecord record(job);
        job.start();
        QCOMPARE(record.ends(), 0);
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.message(), QString());
        QCOMPARE(record.ends(), 1);
        QCOMPARE(names(), (QStringList{QStringLiteral("träger.mtl"), QStringLiteral("träger.obj")}));
        QVERIFY(content("träger.obj").contains("mtllib träger.mtl"));
        QVERIFY(content("träger.mtl").contains("newmtl red"));
        QCOMPARE(record.shares.last(), 1.0);
    }

    void aLargeSceneArrivesWhole()
    {
        ExportJob job(largeScene(), path("large.glb"), realHelper());
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.message(), QString());
        ImportJob back(path("large.glb"), realHelper());
        const JobRecord backRecord(back);
        back.start();
        QVERIFY(backRecord.waitForEnd());
        QCOMPARE(backRecord.message(), QString());
        QCOMPARE(back.takeScene()->getNumChildren(), 120);
    }

    void aModelReplacesTheOldOne()
    {
        for (const NxRef<NxGroup>& each : {scene(), largeScene(), scene()}) {
            ExportJob job(each, path("box.stl"), realHelper());
            const JobRecord record(job);
            job.start();
            QVERIFY(record.waitForEnd());
            QCOMPARE(record.message(), QString());
        }
        QCOMPARE(content("box.stl").size(), 84 + 50); // one triangle
        QCOMPARE(names(), QStringList(QStringLiteral("box.stl")));
    }

    void anotherFormatIsRefusedWithTheHelpersMessage()
    {
        ExportJob job(scene(), path("box.foo"), realHelper());
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages, QStringList(QStringLiteral("box.foo: models of this format can't be written")));
        QVERIFY(names().isEmpty());
    }

    void eachImageHasAFileOfItsOwn()
    {
        const auto run = [this] {
            ExportJob job(texturedScene(), path("box.obj"), realHelper());
            const JobRecord record(job);
            job.start();
            QVERIFY(record.waitForEnd());
            QCOMPARE(record.message(), QString());
        };
        run();
        const QStringList images = names().filter(QStringLiteral(".png"));
        QCOMPARE(images.size(), 2);
        const QByteArray materials = content("box.mtl");
        QCOMPARE(materials.count("map_Kd " + images[0].toUtf8()) + materials.count("map_Kd " + images[1].toUtf8()), 3);
        QCOMPARE(materials.count("map_Kd box_0.png"), 1);
        QVERIFY(content(images[0].toUtf8().constData()) != content(images[1].toUtf8().constData()));
        // Once more gives the same names.
        run();
        QCOMPARE(names().filter(QStringLiteral(".png")), images);
    }

    void noImageIsEverOverwritten()
    {
        {
            ExportJob job(texturedScene(), path("box.obj"), realHelper());
            const JobRecord record(job);
            job.start();
            QVERIFY(record.waitForEnd());
            QCOMPARE(record.message(), QString());
        }
        const QStringList before = names();
        const QString image = before.filter(QStringLiteral(".png")).first();
        write(image.toUtf8().constData(), "the user's own");
        write("box.obj", "old");
        ExportJob job(texturedScene(), path("box.obj"), realHelper());
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages.size(), 1);
        QVERIFY2(record.message().startsWith(
                     path(image.toUtf8().constData()) + QStringLiteral(": This file exists already")),
            qPrintable(record.message()));
        QCOMPARE(content(image.toUtf8().constData()), QByteArray("the user's own"));
        QCOMPARE(content("box.obj"), QByteArray("old"));
        QCOMPARE(names(), before);
    }

    void aFileBesideIsOverwrittenOnlyWithItsModel()
    {
        write("box.mtl", "old");
        const auto run = [this] {
            ExportJob job(scene(), path("box.obj"), realHelper());
            const JobRecord record(job);
            job.start();
            return record.waitForEnd() ? record.message() : QStringLiteral("no end");
        };
        const QString message = run();
        QVERIFY2(
            message.startsWith(path("box.mtl") + QStringLiteral(": This file exists already")), qPrintable(message));
        QCOMPARE(content("box.mtl"), QByteArray("old"));
        QCOMPARE(names(), QStringList(QStringLiteral("box.mtl")));
        write("box.obj", "old");
        QCOMPARE(run(), QString());
        QVERIFY(content("box.mtl").contains("newmtl"));
    }

    void pathsOfImagesCountFromTheModel()
    {
        QVERIFY(QDir().mkpath(path("scenes")));
        ExportJob job(texturedScene(), path("box.obj"), realHelper(), path("scenes"));
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.message(), QString());
        QVERIFY2(content("box.mtl").contains("map_Kd scenes/box_0.png"), content("box.mtl").constData());
    }

    void everyFailureLeavesTheOldFile_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("message");
        const QByteArray readAll("cat > /dev/null; ");
        const QString noModel = QStringLiteral("the import helper sent something that isn't a model");
        QTest::newRow("nothing") << readAll << noModel;
        QTest::newRow("garbage") << readAll + "echo garbage" << noModel;
        QTest::newRow("half a model") << readAll + "printf 'orvane-files 1\\nfile 100 box.obj\\nv 0'" << noModel;
        QTest::newRow("another file") << readAll + "printf 'orvane-files 1\\nfile 1 other.obj\\nxend\\n'" << noModel;
        QTest::newRow("another file beside")
            << readAll + "printf 'orvane-files 1\\nfile 1 box.obj\\nxfile 1 boxer.mtl\\nxend\\n'" << noModel;
        QTest::newRow("another folder") << readAll
                + "printf 'orvane-files 1\\nfile 1 box.obj\\nxfile 1 ../box.mtl\\nxend\\n'"
                                        << noModel;
        QTest::newRow("crash") << QByteArray("kill -SEGV $$")
                               << QStringLiteral("the import helper crashed with signal 11");
        QTest::newRow("crash behind a whole model")
            << readAll + "printf 'orvane-files 1\\nfile 1 box.obj\\nxend\\n'; kill -ABRT $$"
            << QStringLiteral("the import helper crashed with signal 6");
    }

    void everyFailureLeavesTheOldFile()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, message);
        write("box.obj", "old");
        ExportJob job(scene(), path("box.obj"), fakeHelper(m_folder, script));
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages, QStringList(path("box.obj") + QStringLiteral(": ") + message));
        QCOMPARE(content("box.obj"), QByteArray("old"));
        QCOMPARE(names(), QStringList(QStringLiteral("box.obj")));
    }

    void aHelperThatDoesNotReadIsKilled()
    {
        HelperOptions options = fakeHelper(m_folder, "exec sleep 1000");
        options.patience = std::chrono::milliseconds(500);
        ExportJob job(largeScene(), path("box.obj"), options);
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages,
            QStringList(path("box.obj") + QStringLiteral(": the import helper did nothing for 0.5 s and was stopped")));
        QVERIFY(names().isEmpty());
    }

    void aFolderThatIsMissingIsReported()
    {
        ExportJob job(scene(), path("missing/box.stl"), realHelper());
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages, QStringList(path("missing/box.stl") + QStringLiteral(": No such file or directory")));
    }

    void aTargetThatIsAFolderIsReported()
    {
        QVERIFY(QDir().mkpath(path("box.stl")));
        ExportJob job(scene(), path("box.stl"), realHelper());
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages.size(), 1);
        QVERIFY2(record.message().startsWith(path("box.stl")), qPrintable(record.message()));
        QCOMPARE(names(), QStringList(QStringLiteral("box.stl")));
    }

    void aFailureAtOneFileLeavesAllOthers()
    {
        write("box.obj", "old");
        QVERIFY(QDir().mkpath(path("box.mtl")));
        ExportJob job(scene(), path("box.obj"), realHelper());
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.messages.size(), 1);
        QVERIFY2(record.message().startsWith(path("box.mtl")), qPrintable(record.message()));
        QCOMPARE(content("box.obj"), QByteArray("old"));
        QCOMPARE(names(), (QStringList{QStringLiteral("box.mtl"), QStringLiteral("box.obj")}));
    }

    void cancelLeavesTheOldFile()
    {
        write("box.obj", "old");
        ExportJob job(largeScene(), path("box.obj"), fakeHelper(m_folder, "exec sleep 1000"));
        const JobRecord record(job);
        job.start();
        QTRY_VERIFY(!record.shares.isEmpty());
        job.cancel();
        QCOMPARE(record.ends(), 0);
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.cancelled, 1);
        QCOMPARE(record.ends(), 1);
        QCOMPARE(content("box.obj"), QByteArray("old"));
    }

    void aMissingHelperIsReported()
    {
        HelperOptions options;
        options.program = path("nothing");
        ExportJob job(scene(), path("box.obj"), options);
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.ends(), 1);
        QVERIFY2(record.message().startsWith(path("box.obj") + QStringLiteral(": the import helper ") + path("nothing")
                     + QStringLiteral(" can't be started: ")),
            qPrintable(record.message()));
    }

private:
    [[nodiscard]] QString path(const char* name) const { return m_models->filePath(QString::fromUtf8(name)); }

    [[nodiscard]] QByteArray content(const char* name) const { return readFile(path(name)); }

    void write(const char* name, const QByteArray& bytes) const { writeFile(path(name), bytes); }
    [[nodiscard]] QStringList names() const
    {
        return QDir(m_models->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    QTemporaryDir m_folder; // of the stand-in
    std::unique_ptr<QTemporaryDir> m_models;
};

QTEST_GUILESS_MAIN(TestExportJob)
#include "tst_ExportJob.moc"
