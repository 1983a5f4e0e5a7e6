#include "app/AppScenes.h"

#include "orvane/app/scene/ScenePaths.h"

#include "meridane/scene/nodes/NxTexture.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class TestScenePaths : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPathIsRebased_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("rebased");
        const auto row = [](const char* name, const char* path, const char* from, const char* to, const char* rebased) {
            QTest::newRow(name) << QString::fromUtf8(path) << QString::fromUtf8(from) << QString::fromUtf8(to)
                                << QString::fromUtf8(rebased);
        };
        row("the same folder", "./wood.png", "/home/a", "/home/a", "./wood.png");
        row("a folder beside", "wood.png", "/home/a", "/home/b", "../a/wood.png");
        row("a folder below", "wood.png", "/home/a", "/home/a/b", "../wood.png");
        row("a folder above", "wood.png", "/home/a/b", "/home/a", "b/wood.png");
        row("the folder that the file is in", "../b/wood.png", "/home/a", "/home/b", "wood.png");
        row("letters of any alphabet", "träger 1.png", "/home/ä", "/home/b", "../ä/träger 1.png");
        row("nothing in common", "wood.png", "/home/a", "/mnt/b", "/home/a/wood.png");
        row("to no folder", "../wood.png", "/home/a", "", "/home/wood.png");
        row("from no folder", "wood.png", "", "/home/b", "wood.png");
        row("absolute", "/home/a/wood.png", "/home/a", "/home/b", "/home/a/wood.png");
        row("empty", "", "/home/a", "/home/b", "");
        row("a drive", "C:\\images\\wood.png", "/home/a", "/home/b", "C:\\images\\wood.png");
        row("an address", "https://a.example/wood.png", "/home/a", "/home/b", "https://a.example/wood.png");
    }
    void aPathIsRebased()
    {
        QFETCH(QString, path);
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, rebased);
        QCOMPARE(orvane::rebasedPath(path, from, to), rebased);
    }

    void aPathIsAbsoluteInAFolderThatIsALink()
    {
        QTemporaryDir root;
        QVERIFY(QDir(root.path()).mkpath(QStringLiteral("deep/real")));
        const QString link = root.filePath(QStringLiteral("link"));
        QVERIFY(QFile::link(root.filePath(QStringLiteral("deep/real")), link));
        QCOMPARE(orvane::rebasedPath(QStringLiteral("wood.png"), root.path(), link),
            root.filePath(QStringLiteral("wood.png")));
    }

    void allPathsOfASceneAreRebasedOnce()
    {
        const NxRef<NxGroup> scene = AppScenes::read("#mrd 1.0\n"
                                                     "Texture \"wood\" { filePath = \"wood.png\" }\n"
                                                     "Group \"inner\" {\n"
                                                     "  use \"wood\"\n"
                                                     "  Texture { ignored filePath = \"images/stone.png\" }\n"
                                                     "  Texture { filePath = \"/absolute.png\" }\n"
                                                     "}\n"
                                                     "use \"inner\"\n");
        orvane::rebasePaths(*scene, QStringLiteral("/home/a"), QStringLiteral("/home/b"));
        const std::string text = NxSceneWriter::toText(scene.get());
        for (const char* path :
            {"\"../a/wood.png\"", "ignored filePath = \"../a/images/stone.png\"", "\"/absolute.png\""})
            QVERIFY2(text.find(path) != std::string::npos, text.c_str());
    }
};

QTEST_GUILESS_MAIN(TestScenePaths)
#include "tst_ScenePaths.moc"
