#include "Patience.h"
#include "TestFiles.h"
#include "app/AppScenes.h"
#include "app/WindowCase.h"

#include "orvane/app/files/FileFlow.h"
#include "orvane/app/scene/SceneDocument.h"

#include <QDir>

/// Scenes that get from folder to folder in the window, and the image files that they name.
class TestTexturePaths : public WindowCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        startTool();
        for (const char* folder : {"first", "second"})
            QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String(folder)));
        writeFile(filePath("first/scene.mrd"), sceneText("wood.png"));
        writeFile(filePath("second/part.mrd"), sceneText("stone.png"));
    }
    void cleanup() { endTool(); }

    void aSceneThatIsSavedElsewhereFindsItsImages()
    {
        QCOMPARE(open(filePath("first/scene.mrd")), QString());
        for (int round = 0; round < 2; ++round) {
            saveTo("second/scene.mrd");
            QCOMPARE(readFile(filePath("second/scene.mrd")), sceneText("../first/wood.png"));
            // Saving doesn't change the scene that is open.
            QCOMPARE(openScene(), sceneText("wood.png"));
            QVERIFY(!m_session->document().isModified());
            QVERIFY(!m_session->services().canUndo());
        }
        // Back home the paths are what they were.
        saveTo("first/again.mrd");
        QCOMPARE(readFile(filePath("first/again.mrd")), sceneText("wood.png"));
    }

    void whatIsAddedFromElsewhereFindsItsImages()
    {
        QCOMPARE(open(filePath("first/scene.mrd")), QString());
        add("second/part.mrd");
        QVERIFY2(openScene().contains("\"../second/stone.png\""), openScene().constData());
        m_session->services().undo();
        QCOMPARE(openScene(), sceneText("wood.png"));
        m_session->services().redo();
        QVERIFY2(openScene().contains("\"../second/stone.png\""), openScene().constData());
    }

    void whatIsAddedToANewSceneHasAbsolutePaths()
    {
        m_session->document().newScene();
        add("second/part.mrd");
        QVERIFY2(openScene().contains('"' + filePath("second/stone.png").toUtf8() + '"'), openScene().constData());
    }

private:
    [[nodiscard]] static QByteArray sceneText(const char* image)
    {
        return QByteArray("#mrd 1.0\n\nTexture \"surface\" {\n    filePath = \"") + image + "\"\n}\n";
    }

    [[nodiscard]] QByteArray openScene() const
    {
        return QByteArray::fromStdString(NxSceneWriter::toText(m_session->document().scene()));
    }

    void saveTo(const char* name)
    {
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->findChild<FileFlow*>()->saveTo(filePath(name));
        QVERIFY(!settled.isEmpty() || settled.wait(testPatience));
        QCOMPARE(settled.front().front().value<orvane::Result<>>().error(), QString());
    }

    void add(const char* name)
    {
        QSignalSpy settled(m_window.get(), &MainWindow::settled);
        m_window->findChild<FileFlow*>()->import(filePath(name));
        QVERIFY(!settled.isEmpty() || settled.wait(testPatience));
        QCOMPARE(settled.front().front().value<orvane::Result<>>().error(), QString());
    }
};

QTEST_MAIN(TestTexturePaths)
#include "tst_TexturePaths.moc"
