#include "Patience.h"
#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

using Variables = QHash<QString, QString>;

/// The tool where the desktop lacks something that it usually has: a scene can be opened, changed and saved all the
/// same, and what can't be done is said once.
class TestSurroundingsSession : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    /// What the window says, each message once.
    [[nodiscard]] QStringList messages()
    {
        return m_tool->properties(u"messageText"_s, u"plainText"_s).split(u" | "_s, Qt::SkipEmptyParts);
    }
    [[nodiscard]] qsizetype count(const QString& part) { return messages().filter(part).size(); }

    /// Doubles the group of the scene by keys.
    void change()
    {
        m_tool->click(m_tool->item(u"sceneTree"_s, u"first"_s).center());
        m_tool->key(u"ctrl+d"_s);
        QVERIFY(m_tool->becomes(u"mainWindow"_s, u"windowModified"_s));
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_scene = path(u"Käthe.mrd"_s);
        writeFile(m_scene, "#mrd 1.0\nGroup \"first\" {\n}\n");
        m_tool = std::make_unique<LiveTool>();
    }
    void cleanup() { m_tool.reset(); }

    void aSceneIsChangedAndSaved_data()
    {
        QTest::addColumn<Variables>("variables");
        QTest::newRow("no D-Bus") << Variables{{u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nowhere/bus"_s}};
        QTest::newRow("no home") << Variables{{u"HOME"_s, QString()}};
        QTest::newRow("no runtime folder") << Variables{{u"XDG_RUNTIME_DIR"_s, QString()}};
        QTest::newRow("runtime folder is gone") << Variables{{u"XDG_RUNTIME_DIR"_s, u"/nowhere/run"_s}};
        QTest::newRow("no locale") << Variables{{u"LC_ALL"_s, u"xx_YY"_s}, {u"LANG"_s, QString()}};
        QTest::newRow("no theme") << Variables{{u"XDG_CURRENT_DESKTOP"_s, u"Nowhere"_s},
            {u"QT_QPA_PLATFORMTHEME"_s, u"nowhere"_s}, {u"QT_STYLE_OVERRIDE"_s, u"nowhere"_s},
            {u"XDG_DATA_DIRS"_s, u"/nowhere"_s}};
    }
    void aSceneIsChangedAndSaved()
    {
        QFETCH(const Variables, variables);
        for (auto variable = variables.constBegin(); variable != variables.constEnd(); ++variable)
            m_tool->setVariable(variable.key(), *variable);
        QVERIFY(m_tool->start({m_scene}));
        change();
        m_tool->key(u"ctrl+s"_s);
        QTRY_VERIFY(readFile(m_scene).count("Group") == 2);
        QVERIFY(!m_tool->isShown(u"messageText"_s));
        QCOMPARE(m_tool->quit(), 0);
    }

    void withoutOpenGLTheViewSaysSo()
    {
        m_tool->setVariable(u"__EGL_VENDOR_LIBRARY_DIRS"_s, u"/nowhere"_s);
        QVERIFY(m_tool->start({m_scene}));
        QVERIFY(!m_tool->widget(u"viewMessage"_s).isEmpty());
        change();
        m_tool->key(u"ctrl+s"_s);
        QTRY_VERIFY(readFile(m_scene).count("Group") == 2);
        QVERIFY(!m_tool->isShown(u"messageText"_s));
        QCOMPARE(m_tool->quit(), 0);
    }

    /// Settings, recovery files, pictures and recent files have no place.
    void aHomeThatCantBeWrittenIsSaidOnce()
    {
        writeFile(path(u"file"_s), "this is no folder");
        const QString nowhere = path(u"file/home"_s);
        m_tool->keepSettingsIn(nowhere + u"/config"_s);
        m_tool->setVariable(u"HOME"_s, nowhere);
        m_tool->setVariable(u"XDG_STATE_HOME"_s, nowhere + u"/state"_s);
        m_tool->setVariable(u"XDG_CACHE_HOME"_s, nowhere + u"/cache"_s);
        QVERIFY(m_tool->start({m_scene}));
        change();
        QTRY_VERIFY2(count(u"recovery"_s) == 1, qPrintable(messages().join(u'\n')));
        m_tool->key(u"ctrl+s"_s);
        QTRY_VERIFY(readFile(m_scene).count("Group") == 2);
        QCOMPARE(m_tool->quit(), 0);
    }

    /// Not a byte can be written to any file: the changes stay in the window, and the file is what it was.
    void aFullDiskLosesNothing()
    {
        const QByteArray before = readFile(m_scene);
        m_tool->prepareBy(u"ulimit -f 0;"_s);
        m_tool->keepSettingsIn(path(u"config"_s));
        QVERIFY(m_tool->start({m_scene}));
        change();
        m_tool->key(u"ctrl+s"_s);
        QTRY_VERIFY2(count(u"Käthe.mrd"_s) == 1, qPrintable(messages().join(u'\n')));
        QCOMPARE(m_tool->property(u"mainWindow"_s, u"windowModified"_s), u"true"_s);
        QCOMPARE(readFile(m_scene), before);
        m_tool->key(u"ctrl+z"_s);
        QTRY_COMPARE(m_tool->property(u"mainWindow"_s, u"windowModified"_s), u"false"_s);
        QCOMPARE(m_tool->quit(), 0);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LiveTool> m_tool;
    QString m_scene;
};

QTEST_GUILESS_MAIN(TestSurroundingsSession)

#include "tst_SurroundingsSession.moc"
