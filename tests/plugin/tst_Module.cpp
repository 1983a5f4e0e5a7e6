#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/OrvPluginsManager.h"

#include "meridane/base/MrdMemory.h"

#include <QApplication>
#include <QFile>
#include <QLibrary>
#include <QRegularExpression>
#include <QtTest>

namespace {

const QString moduleFile = QStringLiteral(KAL_PLUGIN_FILE);

} // namespace

// The module as the host gets it: a file and two functions.
class tst_Module : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
    void cleanup();
    void loadingRegistersTheResources();
    void entryPointsAreFoundByName();
    void hostTakesThePluginIn();
    void allocationsAreCounted();
};

void tst_Module::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_Module::loadingRegistersTheResources()
{
    const QString icon = QStringLiteral(":/console_icons/Icons/errors.png");
    QVERIFY(!QFile::exists(icon));
    QLibrary module(moduleFile);
    QVERIFY2(module.load(), qUtf8Printable(module.errorString()));
    QVERIFY(QFile::exists(icon));
    QVERIFY(module.unload());
    QVERIFY(!QFile::exists(icon));
}

void tst_Module::entryPointsAreFoundByName()
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

void tst_Module::hostTakesThePluginIn()
{
    OrvPluginsManager manager;
    const auto error = manager.loadPlugin(moduleFile);
    QVERIFY2(!error, error ? qUtf8Printable(*error) : "");
    QVERIFY(!manager.getExtensions().isEmpty());
    QCOMPARE(manager.getExtensions().constLast()->getName(), VbString("Node Editor"));
    manager.unloadPlugins();
}

void tst_Module::allocationsAreCounted()
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

QTEST_MAIN(tst_Module)
#include "tst_Module.moc"
