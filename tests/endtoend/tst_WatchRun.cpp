#include "Patience.h"
#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

namespace {

QByteArray scene(const char* transparency, const char* last)
{
    return QByteArray("#mrd 1.0\nGroup \"rig\" {\n    Material \"paint\" {\n        transparency = ") + transparency
        + "\n    }\n}\nGroup \"" + last + "\" {}\n";
}

} // namespace

// The running tool while another program writes its file.
class TestWatchRun : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_file = m_folder->filePath(QStringLiteral("rig.mrd"));
        writeFile(m_file, scene("0.25", "first"));
        m_tool = std::make_unique<LiveTool>();
    }
    void cleanup()
    {
        m_tool.reset();
        m_folder.reset();
    }

    void theButtonsOfTheMessageWork()
    {
        QVERIFY(m_tool->start({m_file}));
        replaceFile(scene("0.5", "second"));
        m_tool->click(m_tool->widget(QStringLiteral("reloadFromDisk")).center());
        QVERIFY(!row("second").isEmpty());
        QTRY_VERIFY(!m_tool->isShown(QStringLiteral("reloadFromDisk")));
        QCOMPARE(modified(), QStringLiteral("false"));
        m_tool->key(QStringLiteral("ctrl+z"));
        QVERIFY(!row("first").isEmpty());
        QTRY_COMPARE(modified(), QStringLiteral("true"));

        replaceFile(scene("0.75", "third"));
        m_tool->click(m_tool->widget(QStringLiteral("keepMine")).center());
        QTRY_VERIFY(!m_tool->isShown(QStringLiteral("keepMine")));
        m_tool->key(QStringLiteral("ctrl+s"));
        QTRY_VERIFY(readFile(m_file).contains("\"first\""));
        QTRY_COMPARE(modified(), QStringLiteral("false"));
        QCOMPARE(m_tool->quit(), 0);
    }

    void savingOverAChangedFileAsks()
    {
        QVERIFY(m_tool->start({QStringLiteral("--set=/rig/paint.transparency=1"), m_file}));
        replaceFile(scene("0.5", "second"));
        QVERIFY(!m_tool->widget(QStringLiteral("reloadFromDisk")).isEmpty());
        m_tool->key(QStringLiteral("ctrl+s"));
        QVERIFY(!m_tool->widget(QStringLiteral("overwriteQuestion")).isEmpty());
        m_tool->key(QStringLiteral("Escape"));
        QTRY_VERIFY(!m_tool->isShown(QStringLiteral("overwriteQuestion")));
        QCOMPARE(readFile(m_file), scene("0.5", "second"));
        QCOMPARE(modified(), QStringLiteral("true"));
    }

    void itReloadsByItself_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("a scene") << QStringLiteral("rig.mrd");
        QTest::newRow("a model") << QStringLiteral("crate.glb");
    }

    void itReloadsByItself()
    {
        QFETCH(const QString, name);
        const QString file = m_folder->filePath(name);
        const bool isModel = name != QStringLiteral("rig.mrd");
        if (isModel)
            writeFile(file, readFile(QStringLiteral(MODEL_FOLDER "/crate.glb")));
        QVERIFY(m_tool->start({QStringLiteral("--watch"), file}));
        const QByteArray other = isModel ? other3dModel() : scene("0.5", "second");
        // Written bit by bit, as a slow exporter does.
        QFile output(file);
        QVERIFY(output.open(QIODevice::WriteOnly));
        for (qsizetype at = 0; at < other.size(); at += 1 + other.size() / 10) {
            output.write(other.mid(at, 1 + other.size() / 10));
            output.flush();
        }
        output.close();
        QVERIFY(!row(isModel ? "other" : "second").isEmpty());
        QCOMPARE(modified(), QStringLiteral("false"));
        QTRY_VERIFY(!m_tool->isShown(QStringLiteral("reloadFromDisk")));
        m_tool->key(QStringLiteral("ctrl+z"));
        QTRY_COMPARE(modified(), QStringLiteral("true"));
        // With changes it asks.
        if (isModel)
            return;
        replaceFile(scene("0.75", "third"));
        QVERIFY(!m_tool->widget(QStringLiteral("reloadFromDisk")).isEmpty());
        m_tool->key(QStringLiteral("F5"));
        QVERIFY(!row("third").isEmpty());
        QCOMPARE(m_tool->quit(), 0);
    }

    void aFileThatIsGoneIsSavedAgain()
    {
        QVERIFY(m_tool->start({QStringLiteral("--watch"), m_file}));
        QVERIFY(QFile::remove(m_file));
        QTRY_COMPARE(modified(), QStringLiteral("true"));
        m_tool->key(QStringLiteral("ctrl+s"));
        QTRY_VERIFY(readFile(m_file).contains("\"first\""));
        QTRY_COMPARE(modified(), QStringLiteral("false"));
        QCOMPARE(m_tool->quit(), 0);
    }

private:
    void replaceFile(const QByteArray& bytes)
    {
        const QString name = m_folder->filePath(QStringLiteral("written"));
        writeFile(name, bytes);
        QCOMPARE(::rename(qPrintable(name), qPrintable(m_file)), 0);
    }

    QRect row(const char* name) { return m_tool->item(QStringLiteral("sceneTree"), QLatin1String(name)); }
    QString modified() { return m_tool->property(QStringLiteral("mainWindow"), QStringLiteral("windowModified")); }

    /// A model whose only node is called "other", as the tool exports it.
    QByteArray other3dModel()
    {
        const QString from = m_folder->filePath(QStringLiteral("other.mrd"));
        const QString to = m_folder->filePath(QStringLiteral("other.glb"));
        writeFile(
            from, "#mrd 1.0\nGroup \"other\" { Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 1, 2] } }\n");
        QProcess process;
        process.start(
            QStringLiteral(ORVANE_PROGRAM), {QStringLiteral("--no-settings"), QStringLiteral("--export"), to, from});
        process.waitForFinished(testPatience);
        return readFile(to);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LiveTool> m_tool;
    QString m_file;
};

QTEST_GUILESS_MAIN(TestWatchRun)
#include "tst_WatchRun.moc"
