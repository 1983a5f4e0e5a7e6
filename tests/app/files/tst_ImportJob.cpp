#include "TestFiles.h"
#include "app/files/ImportJobCase.h"
#include "import/Gltf.h"

#include "meridane/base/NxPreferences.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

/// The scene that a job of an import gives.
class TestImportJob : public ImportJobCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_errors = 0; }

    void aModelArrivesAsAScene()
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
        QVERIFY(job.content() == meridane::ContentHash::of(readFile(job.fileName()).toStdString()));
        const NxRef<NxGroup> scene = job.takeScene();
        QVERIFY(scene);
        QCOMPARE(scene->getNumChildren(), 3);
        QCOMPARE(scene->getChild(1)->getName(), VbString("stack"));
    }

    void itIsTheSceneThatTheHelperTellsAsText_data()
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
        writeFile(fileName, model);
        QTest::newRow("long lists") << fileName;

        QImage picture(40, 30, QImage::Format_RGB888);
        for (int pixel = 0; pixel < 1200; ++pixel)
            picture.setPixel(pixel % 40, pixel / 40, qRgb(pixel % 256, pixel / 7, 3));
        QBuffer png;
        QVERIFY(png.open(QIODevice::WriteOnly) && picture.save(&png, "png"));
        const QByteArray uri = gltf::dataUri("image/png", png.data());
        const QString textured = m_folder.filePath(QStringLiteral("textured.gltf"));
        writeFile(textured,
            gltf::model(R"({"mesh": 0})",
                R"("scenes": [{"nodes": [0]}], "materials": [{"pbrMetallicRoughness": {"baseColorTexture": {"index": 0}}}],
            "textures": [{"source": 0}], "images": [{"name": "picture", "uri": )"
                    + uri + "}],",
                R"(, "material": 0)"));
        QTest::newRow("an image") << textured;
    }

    void itIsTheSceneThatTheHelperTellsAsText()
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

    void warningsComeWithTheScene()
    {
        const QString fileName = m_folder.filePath(QStringLiteral("partial.obj"));
        writeFile(fileName, "v 0 0 0\nv 1 0 0\nv 0 1 0\no bad\nf 1 2 9\no good\nf 1 2 3\n");
        ImportJob job(fileName, realHelper());
        const JobRecord record(job);
        job.start();
        QVERIFY(record.waitForEnd());
        QCOMPARE(record.finished, 1);
        QCOMPARE(job.warningText(),
            fileName + QStringLiteral(": left out faces with an index out of range in the meshes: \"bad\""));
        QCOMPARE(job.warnings().size(), 1);
    }

    void aPreferenceKeepsGroupsOfOneChild()
    {
        const QString fileName = m_folder.filePath(QStringLiteral("groups.gltf"));
        writeFile(fileName,
            gltf::model(R"({"name": "file", "children": [1]}, {"name": "robot", "children": [2]},
            {"name": "arm", "mesh": 0})",
                R"("scenes": [{"nodes": [0]}],)"));
        for (const char* keeps : {"0", "1"}) {
            NxPreferences::set("ORVANE_KEEP_GROUPS", keeps);
            ImportJob job(fileName, realHelper());
            const JobRecord record(job);
            job.start();
            QVERIFY(record.waitForEnd());
            QCOMPARE(job.takeScene()->getChild(0)->getName(), VbString(*keeps == '1' ? "file" : "robot"));
        }
        NxPreferences::unset("ORVANE_KEEP_GROUPS");
    }

    void theSceneIsGivenOnce()
    {
        ImportJob job(modelFile("crate.obj"), realHelper());
        const JobRecord record(job);
        QVERIFY(!job.takeScene());
        job.start();
        QVERIFY(record.waitForEnd());
        QVERIFY(job.takeScene());
        QVERIFY(!job.takeScene());
    }

    void aSceneIsReadWhileTheHelperEnds()
    {
        const QString readFile = m_folder.filePath(QStringLiteral("read"));
        ImportJob job(QStringLiteral("box.obj"),
            fakeHelper(m_folder,
                packedHead(9 + 10 * 100000) + "; echo '#mrd 1.0'; yes 'Group { }' | head -n 100000; while [ ! -e '"
                    + QFile::encodeName(readFile) + "' ]; do sleep 0.01; done"));
        const JobRecord record(job);
        // The helper doesn't end before the first slice.
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

    void progressIsUnknownUntilTheSceneIsRead()
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

    void aPathMayHoldAnyCharacter()
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

    void cancelWhileTheSceneIsReadDropsIt()
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

    void cancelAfterTheEndDoesNothing()
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
};

QTEST_GUILESS_MAIN(TestImportJob)
#include "tst_ImportJob.moc"
