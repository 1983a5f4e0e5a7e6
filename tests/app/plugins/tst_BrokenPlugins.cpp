#include "TestFiles.h"
#include "app/WindowCase.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/plugins/GuardedApplication.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/SetFieldCommand.h"
#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/nodes/NxPointLight.h"

#include <QTest>

using namespace Qt::StringLiterals;

// Plug-ins with a fault each, in the window with the real plug-in beside them: one line names the plug-in, the window
// lives on, and what wasn't saved is there.
class TestBrokenPlugins : public WindowCase {
    Q_OBJECT

    static QString pathOf(const QString& name) { return QStringLiteral(BROKEN_PLUGIN_FOLDER "/lib%1.so").arg(name); }

    [[nodiscard]] NxPointLight& sun() const
    {
        return *static_cast<NxPointLight*>(m_window->document().scene()->getChild(0));
    }
    static void set(NxField& field, const char* text)
    {
        OrvServices::getInstance()->pushCommand(new SetFieldCommand(&field, VbString(text)));
    }
    static OrvServices& services() { return *OrvServices::getInstance(); }

    /// Starts the tool with the real plug-in and these, in a profile whose docks have the editors of the latter alone.
    void startWith(const QStringList& plugins)
    {
        startTool();
        m_texts.clear();
        connect(&m_session->plugins(), &OrvPluginsManager::noticed, this,
            [this](const QString&, const QString& text) { m_texts.append(text); });
        m_texts += m_session->loadPlugins(OrvPluginsManager::findPlugins(orvane::pluginFolders()), plugins);
        m_texts.removeDuplicates();
        const QList<OrvProfile::Entry> entries{{u"*"_s, true, {u"Broken dial"_s}}};
        QCOMPARE(m_session->plugins().addProfile(std::make_unique<OrvProfile>(u"Broken"_s, entries)), std::nullopt);
        QVERIFY(m_session->activateProfile(u"Broken"_s));
    }

    /// What a user does, which calls everything that a plug-in may have a fault in.
    void work()
    {
        services().select(&sun(), &sun().intensity);
        qApp->processEvents();
        set(sun().intensity, "3");
        qApp->processEvents();
        QTest::keyClick(m_window.get(), Qt::Key_F9);
        m_window->grab();
        services().select(&sun(), &sun().location);
        qApp->processEvents();
        services().select(&sun(), &sun().intensity);
        qApp->processEvents();
        services().undo();
        services().redo();
        services().undo();
        qApp->processEvents();
        m_session->plugins().setActiveProfile(m_session->plugins().getActiveProfile());
        qApp->processEvents();
    }

    QStringList m_texts;

private Q_SLOTS:
    void cleanup() { endTool(); }

    void aFaultIsOneLineAndNothingUnsavedIsLost_data()
    {
        QTest::addColumn<QString>("plugin");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* plugin, const QString& text) {
            QTest::newRow(plugin) << QString::fromLatin1(plugin) << text;
        };
        const QString rest = u"; its extensions don't run any more, until the program is started again"_s;
        const QString restOfOne = u"; the extension doesn't run any more, until the program is started again"_s;
        const auto throws = [&](const char* plugin, const QString& during, bool isOne = false) {
            row(plugin,
                u"it threw an exception during "_s + during + u": the dial is gone"_s + (isOne ? restOfOne : rest));
        };
        throws("ThrowsInActivate", u"\"activate\" of the extension \"Throwing\""_s, true);
        throws("ThrowsInDeactivate", u"\"deactivate\" of the extension \"Throwing\""_s, true);
        for (const char* const place : {"SetEditedObject", "GetWidget", "EditorActivate", "EditorDeactivate", "Slot"})
            throws(QByteArray("ThrowsIn").append(place).constData(), u"the selection of a field"_s);
        throws("ThrowsInSensor", u"a sensor's callback"_s);
        for (const char* const place : {"EventFilter", "Paint", "Timer"})
            throws(QByteArray("ThrowsIn").append(place).constData(), u"an event"_s);
        throws("ThrowsInExecute", u"a command"_s);
        throws("ThrowsInUndo", u"the undo of a command"_s);
        throws("ThrowsInRedo", u"the redo of a command"_s);
        row("PushesInExecute", u"it threw an exception during a command: commands push commands without end"_s + rest);
        row("LoadNotCalled", u"its \"load\" doesn't call OrvPlugin::load, so the tool has loaded its extensions"_s);
        row("EditorWithoutWidget", u"its editor \"Broken dial\" has no widget after \"load\", so it isn't used"_s);
        row("EditorWithoutType", u"its editor \"Broken dial\" handles no type, so it is never used"_s);
        row("DeletesItsWidget",
            u"its editor \"Broken dial\" deleted its widget; it doesn't run any more, until the program is started again"_s);
        row("LeavesConnections",
            u"its extension \"Broken\" was still connected to the tool after its \"deactivate\"; the tool has "
            "disconnected it"_s);
        row("SameNames", u"two of its extensions have the name \"Compass\", so that profiles take both for the same"_s);
        row("NameOfAnother", u"its extension \"Console\" has the name of one of "_s);
        row("NoName", u"an extension of it has no name, so that no profile can name it"_s);
        row("DeletesExtension", u"it deleted its extension \"Compass\", which must live until it is unloaded"_s);
        row("DeletesExtensionLater", u"it deleted its extension \"Compass\", which must live until it is unloaded"_s);
        for (const char* const place : {"Activate", "Deactivate", "Timer"})
            row(QByteArray("DeletesEditorIn").append(place).constData(),
                u"it deleted its extension \"Broken dial\", which must live until it is unloaded"_s);
        row("NodeThrows",
            u"its node class \"BrokenSpring\" isn't used, since no node of it can be made: the spring is gone"_s);
        row("NodeIsNull",
            u"its node class \"BrokenNothing\" isn't used, since no node of it can be made: it makes no node"_s);
        row("ClassOfTheTool",
            u"it was left out, since its classes have the names of others: \"Group\" of the tool itself"_s);
        row("UnnamedDock", u"a dock of it has neither a title nor a name, so its place may get lost"_s);
        row("OtherStamp",
            u"it was built against the plug-in interface 0123456789abcdef (another compiler); this is "_s);
        row("NoStamp", u"it can't be loaded as a plug-in: it has no stamp of the plug-in interface"_s);
    }
    void aFaultIsOneLineAndNothingUnsavedIsLost()
    {
        QFETCH(const QString, plugin);
        QFETCH(const QString, text);
        startWith({pathOf(plugin)});
        const QString file = filePath("scene.mrd");
        writeFile(file, "#mrd 1.0\nPointLight \"sun\" {}\n");
        QCOMPARE(open(file), QString());
        set(sun().location, "1 2 3");

        work();

        QTRY_COMPARE(m_texts.size(), 1);
        const QString start = pathOf(plugin) + u": "_s + text;
        QVERIFY2(m_texts.front().startsWith(start), qPrintable(m_texts.front()));
        QVERIFY(!m_texts.front().contains(u'\n'));
        work();
        QCOMPARE(m_texts.size(), 1);
        QVERIFY(!services().isClean());
        QCOMPARE(sun().location.getValue(), VbVec3f(1, 2, 3));
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(services().isClean());
        QVERIFY2(readFile(file).contains("location = 1 2 3"), readFile(file).constData());
    }

    void theSameClassInTwoPluginsNamesBoth()
    {
        startWith({pathOf(u"Gear"_s), pathOf(u"SameNodeClass"_s)});
        QCOMPARE(m_texts.size(), 1);
        QVERIFY2(m_texts.front().startsWith(pathOf(u"SameNodeClass"_s)), qPrintable(m_texts.front()));
        QVERIFY2(m_texts.front().contains(pathOf(u"Gear"_s)), qPrintable(m_texts.front()));
    }
};

int main(int argc, char* argv[])
{
    GuardedApplication application(argc, argv);
    TestBrokenPlugins test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_BrokenPlugins.moc"
