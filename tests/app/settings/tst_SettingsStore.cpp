#include "TestFiles.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/settings/SettingList.h"
#include "orvane/app/settings/SettingsStore.h"

#include "meridane/base/NxPreferences.h"

#include <QScopeGuard>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString keepPlace = QStringLiteral("structure/keepPlace");

Setting limit()
{
    return {.key = QStringLiteral("a/limit"),
        .kind = Setting::Kind::Number,
        .defaultValue = 8.0,
        .range = {.least = 1, .most = 64, .unit = "MiB"}};
}

Setting shade()
{
    return {.key = QStringLiteral("a/shade"),
        .kind = Setting::Kind::Choice,
        .defaultValue = QStringLiteral("light"),
        .choices = {{"light", "Light"}, {"dark", "Dark"}}};
}

} // namespace

class TestSettingsStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_fileName = m_folder->filePath(QStringLiteral("orvane.ini"));
    }

    void everySettingIsWhole()
    {
        QSet<QString> keys;
        for (const Setting& setting : orvane::settingList()) {
            const QByteArray key = setting.key.toUtf8();
            QVERIFY2(!keys.contains(setting.key), key.constData());
            keys.insert(setting.key);
            QVERIFY2(setting.key.count(u'/') == 1, key.constData());
            QVERIFY2(!setting.titleText().isEmpty(), key.constData());
            QVERIFY2(setting.descriptionText().endsWith(u'.'), key.constData());
            const std::optional<QVariant> standard = setting.usable(setting.defaultValue);
            QVERIFY2(standard && standard->typeId() == setting.defaultValue.typeId(), key.constData());
            QCOMPARE(setting.choices.isEmpty(), setting.kind != Setting::Kind::Choice);
            // What a file keeps is a text.
            QCOMPARE(setting.usable(setting.defaultValue.toString()), standard);
            QCOMPARE(orvane::findSetting(setting.key), &setting);
        }
        QCOMPARE(orvane::findSetting(u"no/setting"), nullptr);
    }

    void readsTypedValues_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariant>("number");
        QTest::addColumn<QVariant>("choice");
        QTest::newRow("text of a number") << QVariant(QStringLiteral("12")) << QVariant(12.0) << QVariant();
        QTest::newRow("least") << QVariant(1) << QVariant(1.0) << QVariant();
        QTest::newRow("too small") << QVariant(0) << QVariant() << QVariant();
        QTest::newRow("too large") << QVariant(QStringLiteral("65")) << QVariant() << QVariant();
        QTest::newRow("no whole number") << QVariant(2.5) << QVariant() << QVariant();
        QTest::newRow("no number") << QVariant(QStringLiteral("nan")) << QVariant() << QVariant();
        QTest::newRow("a switch") << QVariant(true) << QVariant() << QVariant();
        QTest::newRow("a list") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")}) << QVariant()
                                << QVariant();
        QTest::newRow("a choice") << QVariant(QStringLiteral("dark")) << QVariant() << QVariant(QStringLiteral("dark"));
        QTest::newRow("nothing") << QVariant() << QVariant() << QVariant();
    }

    void readsTypedValues()
    {
        QFETCH(const QVariant, stored);
        QFETCH(const QVariant, number);
        QFETCH(const QVariant, choice);
        QCOMPARE(limit().usable(stored).value_or(QVariant()), number);
        QCOMPARE(shade().usable(stored).value_or(QVariant()), choice);
    }

    void saysValuesAsAUserReadsThem()
    {
        QCOMPARE(limit().valueText(12.0), QStringLiteral("12 MiB"));
        QCOMPARE(limit().allowedText(), QStringLiteral("from 1 to 64 MiB"));
        QCOMPARE(shade().valueText(QStringLiteral("dark")), QStringLiteral("Dark"));
        QCOMPARE(shade().allowedText(), QStringLiteral("light, dark"));
    }

    void announcesChangesOfTheValue()
    {
        AppSettings settings(AppSettings::Mode::None, m_fileName);
        SettingsStore& store = SettingsStore::of(settings);
        QCOMPARE(&SettingsStore::of(settings), &store);
        int calls = 0;
        bool isOn = false;
        QObject owner;
        store.follow(keepPlace, &owner, [&] {
            ++calls;
            isOn = store.isOn(keepPlace);
        });
        QVERIFY(isOn);
        store.set(keepPlace, false);
        QVERIFY(!isOn);
        QCOMPARE(calls, 2);
        store.set(keepPlace, false);
        settings.setValue(QStringLiteral("a/b"), 1);
        QCOMPARE(calls, 2);
        store.reset(keepPlace);
        QVERIFY(isOn);
        QCOMPARE(calls, 3);
    }

    void keepsTheFileOfADefaultFreeOfIt()
    {
        AppSettings settings(AppSettings::Mode::None, m_fileName);
        SettingsStore& store = SettingsStore::of(settings);
        const Setting& setting = *orvane::findSetting(keepPlace);
        store.set(keepPlace, false);
        QVERIFY(store.isChanged(setting));
        store.set(keepPlace, true);
        QVERIFY(!store.isChanged(setting));
        QVERIFY(!settings.contains(keepPlace));
        store.set(keepPlace, false);
        settings.setValue(QStringLiteral("a/b"), 1);
        store.resetAll();
        QVERIFY(store.isOn(keepPlace));
        QCOMPARE(settings.value(QStringLiteral("a/b")).toInt(), 1);
    }

    void takesTheDefaultForAValueThatCannotBeUsed()
    {
        writeFile(m_fileName, "[structure]\nkeepPlace=perhaps\n");
        {
            AppSettings settings(AppSettings::Mode::File, m_fileName);
            SettingsStore& store = SettingsStore::of(settings);
            QVERIFY(store.isOn(keepPlace));
            const QStringList unusable = store.unusableValues();
            QCOMPARE(unusable.size(), 1);
            QVERIFY(unusable.front().contains(keepPlace));
            QVERIFY(unusable.front().contains(QStringLiteral("perhaps")));
            settings.setValue(QStringLiteral("a/b"), 1);
        }
        QVERIFY(readFile(m_fileName).contains("keepPlace=perhaps"));
        {
            AppSettings settings(AppSettings::Mode::File, m_fileName);
            SettingsStore::of(settings).set(keepPlace, false);
            QVERIFY(SettingsStore::of(settings).unusableValues().isEmpty());
        }
        QVERIFY(readFile(m_fileName).contains("keepPlace=false"));
    }

    void countsAnOptionMoreThanTheSetting()
    {
        AppSettings settings(AppSettings::Mode::None, m_fileName);
        SettingsStore& store = SettingsStore::of(settings);
        const Setting& setting = *orvane::findSetting(keepPlace);
        QVERIFY(!store.overruling(setting));
        const QSignalSpy changed(&store, &SettingsStore::changed);
        store.overrule(keepPlace, false, QStringLiteral("--option"));
        QCOMPARE(changed.size(), 1);
        QVERIFY(!store.isOn(keepPlace));
        QCOMPARE(store.ownValue(setting), QVariant(true));
        QCOMPARE(store.overruling(setting)->source, QStringLiteral("--option"));
    }

    void setsToolkitPreferences()
    {
        const QString history = QStringLiteral("history/limit");
        const auto preference
            = [] { return orvane::toQString(NxPreferences::getString("ORVANE_HISTORY", VbString())); };
        const Setting& setting = *orvane::findSetting(history);
        {
            AppSettings settings(AppSettings::Mode::None, m_fileName);
            SettingsStore& store = SettingsStore::of(settings);
            QCOMPARE(preference(), QString());
            store.set(history, 1048576);
            QCOMPARE(preference(), QStringLiteral("1048576"));
            // The environment counts more.
            qputenv("ORVANE_HISTORY", "5");
            QCOMPARE(store.number(history), 5.0);
            QCOMPARE(store.overruling(setting)->source, QStringLiteral("ORVANE_HISTORY"));
            qputenv("ORVANE_HISTORY", "many");
            QVERIFY(!store.overruling(setting)->value.isValid());
            QCOMPARE(store.number(history), 1048576.0);
            qunsetenv("ORVANE_HISTORY");
        }
        QCOMPARE(preference(), QString());
    }

    void followsTheFileOfPreferencesWhereNothingIsSet()
    {
        const QString history = QStringLiteral("history/limit");
        const Setting& setting = *orvane::findSetting(history);
        const QString preferences = m_folder->filePath(QStringLiteral("preferences.conf"));
        writeFile(preferences, "ORVANE_HISTORY = 12\n");
        QVERIFY(NxPreferences::setFile(preferences.toUtf8().constData()));
        const auto forget = qScopeGuard([] { NxPreferences::setFile(nullptr); });
        AppSettings settings(AppSettings::Mode::None, m_fileName);
        SettingsStore& store = SettingsStore::of(settings);
        QCOMPARE(store.number(history), 12.0);
        QCOMPARE(store.preferred(setting), QVariant(12.0));
        QVERIFY(!store.isChanged(setting));
        // The default itself can be chosen.
        store.set(history, setting.defaultValue);
        QCOMPARE(store.number(history), 256.0);
        QVERIFY(store.isChanged(setting));
        store.reset(history);
        QCOMPARE(store.number(history), 12.0);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_fileName;
};

QTEST_GUILESS_MAIN(TestSettingsStore)
#include "tst_SettingsStore.moc"
