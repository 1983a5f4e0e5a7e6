#include "app/view/ViewScenes.h"
#include "import/GeneratedModels.h"
#include "import/conversion/ReadModels.h"

#include "orvane/app/view/SceneView.h"

#include <QDirIterator>
#include <QTest>

/// No model with something in it opens to an empty picture.
class TestModelPictures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aGeneratedModelIsSeen_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("bytes");
        for (const generated::Model& model : generated::models())
            QTest::newRow(model.about.constData()) << model.fileName << model.bytes;
    }
    void aGeneratedModelIsSeen()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, bytes);
        ReadModels models;
        const NxRef<NxGroup> scene = models.read(name.constData(), bytes);
        QVERIFY2(scene, qPrintable(models.message()));
        checkSeen(*scene);
    }

    // The folder that the environment names, or the one beside the project.
    void aModelOfOthersIsSeen()
    {
        const QString named = qEnvironmentVariable("ORVANE_TEST_MODELS_FOLDER");
        const QString folder = named.isEmpty() ? QStringLiteral(ORVANE_SOURCES "/../shared/models") : named;
        QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
        int count = 0;
        while (files.hasNext()) {
            const QString file = files.next();
            static const QByteArrayList extensions{"glb", "gltf", "obj", "fbx", "dae", "stl", "ply", "3ds", "x", "off"};
            if (!extensions.contains(files.fileInfo().suffix().toLower().toUtf8()))
                continue;
            const HelperRun run = runHelper({QStringLiteral("--read"), file});
            QVERIFY2(!run.crashed, qPrintable(file));
            if (run.status != 0)
                continue; // refused, with a message
            std::string error;
            const NxRef<NxGroup> scene = sceneOf(run.output, error);
            QVERIFY2(scene, error.c_str());
            if (ReadModels::all<NxNode>(*scene).empty())
                continue;
            ++count;
            checkSeen(*scene);
            if (QTest::currentTestFailed())
                qInfo("%s", qPrintable(file));
        }
        qInfo("%d models of others are seen", count);
    }

private:
    static void checkSeen(NxGroup& scene)
    {
        SceneView view;
        view.resize(320, 240);
        view.setStyle(ViewScenes::withoutLines(view.style()));
        view.show();
        QTRY_VERIFY(view.drawing().isStarted());
        const NxRef<NxGroup> empty(new NxGroup);
        view.setScene(empty.get(), QString());
        const QImage background = view.grab().toImage();
        view.setScene(&scene, QString());
        const QImage picture = view.grab().toImage();
        QCOMPARE(picture.size(), background.size());
        int seen = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (!ViewScenes::isLike(picture.pixelColor(x, y), background.pixelColor(x, y)))
                    ++seen;
            }
        }
        QVERIFY2(seen >= 4, qPrintable(QStringLiteral("%1 pixels").arg(seen)));
    }
};

QTEST_MAIN(TestModelPictures)
#include "tst_ModelPictures.moc"
