#include "extender/Recording.h"

#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/scene/nodes/NxPointLight.h"

#include <QComboBox>
#include <QTest>
#include <QWidget>

#include <stdexcept>

using namespace Qt::StringLiterals;

/// Two docks, a console and two editors in one plug-in, a tool bar in a second one, and the profiles "All", "Quiet"
/// (without the console) and "None".
class TestOrvPluginsManager : public QObject {
    Q_OBJECT

    static void keep(const NxError* error, void* texts)
    {
        static_cast<QStringList*>(texts)->append(QString::fromUtf8(error->getDebugString().toUtf8()));
    }

    struct Tool {
        Tool()
            : editors({&text, &number, &console, &fieldDock, &nodeDock})
            , others({&toolBar})
        {
            text.setWidget(&widget);
            number.setWidget(&widget);
            addProfile(u"All"_s, {{u"*"_s, true, {u"*"_s}}});
            addProfile(u"Quiet"_s, {{u"*"_s, true, {u"Text"_s}}, {u"Console"_s, false, {}}});
            addProfile(u"None"_s, {});
        }

        void addProfile(const QString& name, const QList<OrvProfile::Entry>& entries)
        {
            QCOMPARE(manager.addProfile(std::make_unique<OrvProfile>(name, entries)), std::nullopt);
        }
        void loadPlugins()
        {
            QCOMPARE(manager.addPlugin(&editors), std::nullopt);
            QCOMPARE(manager.addPlugin(&others), std::nullopt);
        }
        void run(const QString& profile) { manager.setActiveProfile(manager.findProfile(profile)); }
        [[nodiscard]] OrvProfile* profile(const QString& name) const { return manager.findProfile(name); }

        QWidget widget;
        QStringList calls;
        RecordingEditor text{u"Text"_s, calls};
        RecordingEditor number{u"Number"_s, calls};
        RecordingExtension console{u"Console"_s, calls};
        RecordingExtension fieldDock{u"FieldDock"_s, calls};
        RecordingExtension nodeDock{u"NodeDock"_s, calls};
        RecordingExtension toolBar{u"ToolBar"_s, calls};
        TestPlugin editors;
        TestPlugin others;
        OrvPluginsManager manager;
    };

private Q_SLOTS:
    void cleanup() { NxDebugError::setHandlerCallback(nullptr, nullptr); }

    void theManagerIsTheOneThatLives()
    {
        QVERIFY(OrvPluginsManager::getInstance() == nullptr);
        {
            const OrvPluginsManager manager;
            QCOMPARE(OrvPluginsManager::getInstance(), &manager);
        }
        QVERIFY(OrvPluginsManager::getInstance() == nullptr);
    }

    void loadingActivatesNothing()
    {
        Tool tool;
        tool.loadPlugins();
        QCOMPARE(
            taken(tool.calls), words("Text.load Number.load Console.load FieldDock.load NodeDock.load ToolBar.load"));
        QCOMPARE(tool.manager.getExtensions().size(), 6);
        QVERIFY(tool.manager.getActiveProfile() == nullptr);
    }

    void aProfileActivatesWhatRunsByItselfInTheOrderOfRegistration()
    {
        Tool tool;
        tool.loadPlugins();
        taken(tool.calls);
        tool.run(u"All"_s);
        QCOMPARE(taken(tool.calls), words("Console.activate FieldDock.activate NodeDock.activate ToolBar.activate"));
        QCOMPARE(tool.manager.getActiveProfile(), tool.profile(u"All"_s));
    }

    void anotherProfileDeactivatesAllInReverseAndActivatesItsOwn()
    {
        Tool tool;
        tool.loadPlugins();
        tool.run(u"All"_s);
        taken(tool.calls);
        tool.run(u"Quiet"_s);
        QCOMPARE(taken(tool.calls),
            words("ToolBar.deactivate NodeDock.deactivate FieldDock.deactivate Console.deactivate "
                  "FieldDock.activate NodeDock.activate ToolBar.activate"));
        tool.run(u"None"_s);
        QCOMPARE(taken(tool.calls), words("ToolBar.deactivate NodeDock.deactivate FieldDock.deactivate"));
        QCOMPARE(tool.manager.getActiveProfile(), tool.profile(u"None"_s));
        tool.manager.setActiveProfile(nullptr);
        QVERIFY(tool.manager.getActiveProfile() == nullptr);
        QVERIFY(tool.calls.isEmpty());
    }

    void theActiveProfileIsMadeEffectiveAnew()
    {
        Tool tool;
        tool.loadPlugins();
        tool.run(u"Quiet"_s);
        taken(tool.calls);
        tool.run(u"Quiet"_s);
        QCOMPARE(taken(tool.calls),
            words("ToolBar.deactivate NodeDock.deactivate FieldDock.deactivate "
                  "FieldDock.activate NodeDock.activate ToolBar.activate"));
    }

    void extensionsThatAProfileNamesAndNobodyHasAreToldOnce()
    {
        QStringList errors;
        NxDebugError::setHandlerCallback(&keep, &errors);
        Tool tool;
        tool.addProfile(u"Other"_s, {{u"Compass"_s, true, {}}, {u"FieldDock"_s, true, {u"Dial"_s}}});
        tool.run(u"Other"_s);
        const QStringList withoutPlugins = taken(errors);
        tool.loadPlugins();
        tool.run(u"Other"_s);
        tool.run(u"All"_s);
        tool.run(u"Other"_s);
        QCOMPARE(withoutPlugins, QStringList());
        QCOMPARE(errors.size(), 1);
        QVERIFY2(errors.front().contains(
                     u"The profile \"Other\" names extensions that no plug-in has: \"Compass\", \"Dial\"."_s),
            qPrintable(errors.front()));
    }

    void anExtensionHasTheOldSettingWhileItIsDeactivatedAndTheNewOneWhileActivated()
    {
        Tool tool;
        tool.loadPlugins();
        qsizetype controlledBefore = -1;
        qsizetype controlledAfter = -1;
        const auto controlled
            = [&] { return qsizetype(tool.fieldDock.getProfileSetting()->getControlledExtensions().size()); };
        tool.run(u"All"_s);
        tool.fieldDock.whenDeactivated = [&] { controlledBefore = controlled(); };
        tool.fieldDock.whenActivated = [&] { controlledAfter = controlled(); };
        tool.run(u"Quiet"_s);
        QCOMPARE(controlledBefore, 5);
        QCOMPARE(controlledAfter, 1);
    }

    void unloadingStopsThenUnloadsPluginByPluginInReverse()
    {
        Tool tool;
        tool.loadPlugins();
        tool.run(u"Quiet"_s);
        taken(tool.calls);
        tool.manager.unloadPlugins();
        QCOMPARE(taken(tool.calls),
            words("ToolBar.deactivate NodeDock.deactivate FieldDock.deactivate "
                  "ToolBar.unload NodeDock.unload FieldDock.unload Console.unload Number.unload Text.unload"));
        QVERIFY(tool.manager.getExtensions().isEmpty());
        QVERIFY(tool.manager.getActiveProfile() == nullptr);
        QVERIFY(tool.profile(u"Quiet"_s)->getSetting(&tool.fieldDock) == nullptr);
    }

    void everyExtensionSeesItsCallsInOrderOverManySwitches()
    {
        Tool tool;
        tool.loadPlugins();
        for (int round = 0; round < 3; ++round) {
            for (const char* name : {"All", "Quiet", "None"})
                tool.run(QString::fromLatin1(name));
        }
        tool.manager.unloadPlugins();
        const auto callsOf = [&](const char* name) {
            QStringList own;
            for (const QString& call : std::as_const(tool.calls)) {
                if (call.startsWith(QLatin1String(name)))
                    own.append(call.section(u'.', 1));
            }
            return own;
        };
        QCOMPARE(callsOf("Text"), words("load unload"));
        QCOMPARE(callsOf("Console"), words("load activate deactivate activate deactivate activate deactivate unload"));
        QCOMPARE(callsOf("FieldDock"),
            words("load activate deactivate activate deactivate activate deactivate activate deactivate "
                  "activate deactivate activate deactivate unload"));
    }

    void aPluginThatComesLateIsRunByTheActiveProfile()
    {
        Tool tool;
        QCOMPARE(tool.manager.addPlugin(&tool.editors), std::nullopt);
        tool.run(u"Quiet"_s);
        taken(tool.calls);
        QCOMPARE(tool.manager.addPlugin(&tool.others), std::nullopt);
        QCOMPARE(taken(tool.calls),
            words("ToolBar.load NodeDock.deactivate FieldDock.deactivate "
                  "FieldDock.activate NodeDock.activate ToolBar.activate"));
    }

    void aPluginThatThrowsInLoadIsUnloadedAndLeftOut()
    {
        Tool tool;
        tool.console.whenLoaded = [] { throw std::runtime_error("no pen"); };
        QCOMPARE(tool.manager.addPlugin(&tool.editors),
            u"Test plug-in: it can't be loaded, for it threw an exception: no pen"_s);
        QCOMPARE(taken(tool.calls), words("Text.load Number.load Console.load Number.unload Text.unload"));
        QVERIFY(tool.manager.getExtensions().isEmpty());
    }

    void whatARunningExtensionThrowsIsPostedAndTheOthersGoOn()
    {
        QStringList errors;
        NxDebugError::setHandlerCallback(&keep, &errors);
        Tool tool;
        tool.loadPlugins();
        tool.fieldDock.whenActivated = [] { throw std::runtime_error("no room"); };
        tool.nodeDock.whenDeactivated = [] { throw 1; };
        taken(tool.calls);
        tool.run(u"Quiet"_s);
        tool.run(u"None"_s);
        QCOMPARE(taken(tool.calls),
            words("FieldDock.activate NodeDock.activate ToolBar.activate "
                  "ToolBar.deactivate NodeDock.deactivate FieldDock.deactivate"));
        QCOMPARE(errors,
            (QStringList{
                u"Test plug-in: it threw an exception during \"activate\" of the extension \"FieldDock\": no room; "
                "the extension doesn't run any more, until the program is started again"_s,
                u"Test plug-in: it threw an exception during \"deactivate\" of the extension \"NodeDock\": of unknown "
                "kind; the extension doesn't run any more, until the program is started again"_s}));
    }

    void profilesAreListedInOrderAndFoundByName()
    {
        Tool tool;
        QStringList names;
        for (const OrvProfile* profile : tool.manager.getProfilesList())
            names.append(orvane::toQString(profile->getName()));
        QCOMPARE(names, words("All Quiet None"));
        QVERIFY(tool.profile(u"quiet"_s) == nullptr);
    }

    void aProfileWithoutANameOrWithATakenOneIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");
        QTest::newRow("empty") << QString() << u"a profile must have a name"_s;
        QTest::newRow("blanks") << u"  "_s << u"a profile must have a name"_s;
        QTest::newRow("taken") << u"Quiet"_s << u"there is a profile \"Quiet\" already"_s;
    }
    void aProfileWithoutANameOrWithATakenOneIsRefused()
    {
        QFETCH(QString, name);
        QFETCH(QString, message);
        Tool tool;
        QCOMPARE(tool.manager.addProfile(std::make_unique<OrvProfile>(name, QList<OrvProfile::Entry>())), message);
        QCOMPARE(tool.manager.getProfilesList().size(), std::size_t(3));
    }

    void aProfileThatIsNotInTheListIsIgnored()
    {
        Tool tool;
        tool.loadPlugins();
        tool.run(u"All"_s);
        taken(tool.calls);
        OrvProfile foreign(u"Foreign"_s, {});
        tool.manager.setActiveProfile(&foreign);
        QVERIFY(tool.calls.isEmpty());
        QCOMPARE(tool.manager.getActiveProfile(), tool.profile(u"All"_s));
    }

    void theSelectionIsAnnouncedAgainBehindTheActivation()
    {
        OrvServices services;
        Tool tool;
        tool.loadPlugins();
        tool.run(u"All"_s);
        auto* const light = new NxPointLight;
        services.selectNode(light);
        services.selectField(&light->intensity);
        taken(tool.calls);
        connect(&services, &OrvServices::selectedNodeChanged, this, [&](const NxFieldContainer* node) {
            QCOMPARE(node, light);
            tool.calls.append(u"node"_s);
        });
        connect(&services, &OrvServices::selectedFieldChanged, this, [&](const NxField* field) {
            QCOMPARE(field, &light->intensity);
            tool.calls.append(u"field"_s);
        });
        tool.run(u"Quiet"_s);
        QCOMPARE(taken(tool.calls).mid(4), words("FieldDock.activate NodeDock.activate ToolBar.activate node field"));
    }

    void noProfileStartsWhilePluginsAreUnloaded_data()
    {
        QTest::addColumn<bool>("inUnload");
        QTest::newRow("asked for by deactivate") << false;
        QTest::newRow("asked for by unload") << true;
    }

    void noProfileStartsWhilePluginsAreUnloaded()
    {
        QFETCH(const bool, inUnload);
        Tool tool;
        tool.loadPlugins();
        tool.run(u"All"_s);
        (inUnload ? tool.toolBar.whenUnloaded : tool.toolBar.whenDeactivated) = [&] { tool.run(u"Quiet"_s); };
        taken(tool.calls);
        tool.manager.unloadPlugins();
        QCOMPARE(taken(tool.calls),
            words("ToolBar.deactivate NodeDock.deactivate FieldDock.deactivate Console.deactivate "
                  "ToolBar.unload NodeDock.unload FieldDock.unload Console.unload Number.unload Text.unload"));
        QVERIFY(tool.manager.getActiveProfile() == nullptr);
        QCoreApplication::processEvents();
        QVERIFY(tool.manager.getActiveProfile() == nullptr);
        tool.loadPlugins();
        tool.run(u"Quiet"_s);
        QCOMPARE(tool.manager.getActiveProfile(), tool.profile(u"Quiet"_s));
    }

    void anExtensionMayChangeTheProfileFromItsOwnSlot()
    {
        Tool tool;
        tool.loadPlugins();
        QComboBox box;
        box.addItems(words("All Quiet"));
        tool.toolBar.whenDeactivated = [&] { box.disconnect(); };
        tool.toolBar.whenActivated = [&] {
            box.clear();
            box.addItems(words("All Quiet"));
            box.setCurrentIndex(tool.manager.getActiveProfile() == tool.profile(u"All"_s) ? 0 : 1);
            connect(&box, &QComboBox::currentIndexChanged, &tool.toolBar, [&](int index) {
                tool.run(box.itemText(index));
                tool.calls.append(u"end-of-slot"_s);
            });
        };
        tool.run(u"All"_s);
        taken(tool.calls);
        box.setCurrentIndex(1);
        QCOMPARE(taken(tool.calls),
            words("ToolBar.deactivate NodeDock.deactivate FieldDock.deactivate Console.deactivate "
                  "FieldDock.activate NodeDock.activate ToolBar.activate end-of-slot"));
        QCOMPARE(tool.manager.getActiveProfile(), tool.profile(u"Quiet"_s));
        QCOMPARE(box.currentIndex(), 1);
    }

    void wishesDuringAChangeAreFulfilledFromTheEventLoopAndTheLastOneCounts()
    {
        Tool tool;
        tool.loadPlugins();
        tool.run(u"All"_s);
        tool.fieldDock.whenDeactivated = [&] { tool.run(u"All"_s); };
        tool.fieldDock.whenActivated = [&] {
            tool.fieldDock.whenDeactivated = {};
            tool.fieldDock.whenActivated = {};
            tool.run(u"None"_s);
        };
        taken(tool.calls);
        tool.run(u"Quiet"_s);
        QCOMPARE(tool.manager.getActiveProfile(), tool.profile(u"Quiet"_s));
        QCOMPARE(taken(tool.calls).size(), 4 + 3);
        QCoreApplication::processEvents();
        QCOMPARE(tool.manager.getActiveProfile(), tool.profile(u"None"_s));
        QCOMPARE(taken(tool.calls), words("ToolBar.deactivate NodeDock.deactivate FieldDock.deactivate"));
        QCoreApplication::processEvents();
        QVERIFY(tool.calls.isEmpty());
    }

    void aWishIsForgottenWhenThePluginsAreUnloaded()
    {
        Tool tool;
        tool.loadPlugins();
        tool.fieldDock.whenActivated = [&] {
            tool.fieldDock.whenActivated = {};
            tool.run(u"All"_s);
        };
        tool.run(u"Quiet"_s);
        tool.manager.unloadPlugins();
        taken(tool.calls);
        QCoreApplication::processEvents();
        QVERIFY(tool.calls.isEmpty());
        QVERIFY(tool.manager.getActiveProfile() == nullptr);
    }
};

QTEST_MAIN(TestOrvPluginsManager)
#include "tst_OrvPluginsManager.moc"
