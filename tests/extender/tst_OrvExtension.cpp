#include "extender/Recording.h"

#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestOrvExtension : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itIsActiveFromActivateToDeactivate()
    {
        QStringList calls;
        RecordingExtension extension(u"Dock"_s, calls);
        QVERIFY(!extension.isActive());
        extension.activate();
        QVERIFY(extension.isActive());
        extension.show();
        extension.hide();
        QVERIFY(extension.isActive());
        extension.deactivate();
        QVERIFY(!extension.isActive());
    }

    void itHasNoSettingWithoutManagerOrProfile()
    {
        QStringList calls;
        RecordingExtension extension(u"Dock"_s, calls);
        QVERIFY(extension.getProfileSetting() == nullptr);
        OrvPluginsManager manager;
        QVERIFY(extension.getProfileSetting() == nullptr);
    }

    void itsSettingIsThatOfTheActiveProfile()
    {
        QStringList calls;
        RecordingExtension dock(u"Dock"_s, calls);
        RecordingExtension console(u"Console"_s, calls);
        TestPlugin plugin({&dock, &console});
        OrvPluginsManager manager;
        QCOMPARE(manager.addPlugin(&plugin), std::nullopt);
        const QList<OrvProfile::Entry> entries{{u"Dock"_s, true, {u"Console"_s}}};
        QCOMPARE(manager.addProfile(std::make_unique<OrvProfile>(u"Quiet"_s, entries)), std::nullopt);
        manager.setActiveProfile(manager.findProfile(u"Quiet"_s));

        QVERIFY(dock.getProfileSetting() != nullptr);
        QCOMPARE(dock.getProfileSetting(), manager.getActiveProfile()->getSetting(&dock));
        QVERIFY(console.getProfileSetting() == nullptr);
        manager.setActiveProfile(nullptr);
        QVERIFY(dock.getProfileSetting() == nullptr);
    }
};

QTEST_GUILESS_MAIN(TestOrvExtension)
#include "tst_OrvExtension.moc"
