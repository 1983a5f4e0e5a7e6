#include "ToolHarness.h"

#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"

#include "meridane/base/MrdMemory.h"

#include <QFile>
#include <QLabel>
#include <QLibrary>
#include <QLineEdit>

#include <algorithm>
#include <memory>

namespace {

const QString moduleFile = QStringLiteral(KAL_PLUGIN_FILE);

} // namespace

// The module as the host gets it: a file and two functions.
class TestModule : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }

    void cleanup()
    {
        m_tool.reset();
        QVERIFY(ToolHarness::noWidgetIsLeft());
    }

    void loadingRegistersTheResources()
    {
        const QString icon = QStringLiteral(":/console_icons/Icons/errors.png");
        QVERIFY(!QFile::exists(icon));
        QLibrary module(moduleFile);
        QVERIFY2(module.load(), qUtf8Printable(module.errorString()));
        QVERIFY(QFile::exists(icon));
        QVERIFY(module.unload());
        QVERIFY(!QFile::exists(icon));
    }

    void entryPointsAreFoundByName()
    {
        QLibrary module(moduleFile);
        const auto load = reinterpret_cast<OrvPlugin* (*)()>(module.resolve("loadPlugin"));
        const QFunctionPointer unload = module.resolve("unloadPlugin");
        QVERIFY2(load != nullptr && unload != nullptr, qUtf8Printable(module.errorString()));
        OrvPlugin* const plugin = load();
        QVERIFY(plugin != nullptr);
        QCOMPARE(plugin->getName(), VbString("OrvDefaults"));
        unload();
        unload();
        QVERIFY(module.unload());
    }

    void hostTakesThePluginIn()
    {
        OrvPluginsManager manager;
        const auto error = manager.loadPlugin(moduleFile);
        QVERIFY2(!error, error ? qUtf8Printable(*error) : "");
        QVERIFY(!manager.getExtensions().isEmpty());
        QCOMPARE(manager.getExtensions().constLast()->getName(), VbString("Node Editor"));
        manager.unloadPlugins();
    }

    void selectedFieldIsShownInTheDock()
    {
        OrvPluginsManager manager;
        runEverything(manager);
        NxSFFloat& field = m_tool->node->sfFloat;
        m_tool->services.selectField(&field);
        const QDockWidget* const dock = fieldDock();
        QVERIFY(dock != nullptr);
        QVERIFY(dock->isVisible());
        auto* const line = dock->findChild<QLineEdit*>();
        QVERIFY(line != nullptr);
        field.setValue(2.5F);
        ToolHarness::pump();
        QCOMPARE(line->text(), QStringLiteral("2.500000"));
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("3.25"));
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(field.getValue(), 3.25F);
        QVERIFY(m_tool->services.canUndo());
        m_tool->services.clearHistory();
        m_tool->services.selectField(nullptr);
        QVERIFY(!dock->isVisible());
    }

    void fieldWithoutAnEditorOfItsOwnIsEditedAsALine()
    {
        OrvPluginsManager manager;
        runEverything(manager);
        NxSFTime& field = m_tool->node->sfTime;
        m_tool->services.selectField(&field);
        const QDockWidget* const dock = fieldDock();
        QVERIFY(dock != nullptr);
        QVERIFY(dock->isVisible());
        QVERIFY(dock->findChild<QLabel*>(QStringLiteral("m_label"))->text().contains(QLatin1String("SField")));
        auto* const line = dock->findChild<QLineEdit*>();
        QVERIFY(line != nullptr);
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("2.5"));
        QCOMPARE(ToolHarness::textOf(field), QStringLiteral("2.5"));
        m_tool->services.clearHistory();
        m_tool->services.selectField(nullptr);
    }

    void allocationsAreCounted()
    {
#ifdef KAL_SANITIZED
        QSKIP("the sanitizers bring operators of their own");
#else
        QLibrary module(moduleFile);
        const auto load = reinterpret_cast<OrvPlugin* (*)()>(module.resolve("loadPlugin"));
        const QFunctionPointer unload = module.resolve("unloadPlugin");
        QVERIFY(load != nullptr && unload != nullptr);
        const auto blocks = pMrd_memCnt->blocks.load();
        const auto bytes = pMrd_memCnt->bytes.load();
        load();
        QVERIFY(pMrd_memCnt->blocks.load() > blocks + 2); // the plug-in and at least its editors' frames
        QVERIFY(pMrd_memCnt->bytes.load() > bytes);
        unload();
        QVERIFY(module.unload());
#endif
    }

private:
    /// Loads the module and runs all its extensions, each of which controls all others.
    void runEverything(OrvPluginsManager& manager)
    {
        QVERIFY(!manager.loadPlugin(moduleFile));
        const QStringList everything{QStringLiteral("*")};
        const QList<OrvProfile::Entry> entries{{QStringLiteral("*"), true, everything}};
        QVERIFY(!manager.addProfile(std::make_unique<OrvProfile>(QStringLiteral("All"), entries)));
        manager.setActiveProfile(manager.getProfilesList().front());
        m_tool->shell.window.show();
    }

    [[nodiscard]] QDockWidget* fieldDock() const
    {
        const QList<QDockWidget*> docks = m_tool->shell.window.findChildren<QDockWidget*>();
        const auto isFieldDock
            = [](const QDockWidget* dock) { return dock->windowTitle() == QLatin1String("Field Editor"); };
        const auto dock = std::find_if(docks.begin(), docks.end(), isFieldDock);
        return dock != docks.end() ? *dock : nullptr;
    }

    std::unique_ptr<ToolHarness> m_tool;
};

QTEST_MAIN(TestModule)
#include "tst_Module.moc"
