#include "TestFiles.h"

#include "orvane/app/settings/SettingList.h"
#include "orvane/app/settings/SettingsFile.h"
#include "orvane/app/settings/SettingsStore.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

/// A cell of a table in the documentation.
QString cell(QString text)
{
    return text.replace(u'|', QStringLiteral("\\|"));
}

/// The table of a page in docs/settings.md.
QString tableOf(SettingPage page)
{
    QString rows;
    for (const Setting& setting : orvane::settingList()) {
        if (setting.page != page)
            continue;
        const QString preference = setting.preference == nullptr
            ? QString()
            : QStringLiteral(" (`%1`)").arg(QLatin1String(setting.preference));
        // A number of many digits would become one with an exponent.
        const QString value = setting.kind == Setting::Kind::Number
            ? QString::number(setting.defaultValue.toDouble(), 'f', QLocale::FloatingPointShortest)
            : setting.defaultValue.toString();
        QStringList allowed{setting.allowedText()};
        if (setting.kind == Setting::Kind::Choice) {
            allowed.clear();
            for (const Setting::Choice& choice : setting.choices)
                allowed.append(QStringLiteral("`%1`").arg(QLatin1String(choice.value)));
        }
        rows
            += QStringLiteral("| %1 | `%2`%3 | %4 | %5 | %6 |\n")
                   .arg(setting.titleText(), setting.key, preference, allowed.join(QStringLiteral(", ")),
                       value.isEmpty() ? QStringLiteral("none") : u'`' + value + u'`', cell(setting.descriptionText()));
    }
    return rows.isEmpty() ? QString()
                          : QStringLiteral("## %1\n\n| setting | key | values | default | what it does |\n"
                                           "|---|---|---|---|---|\n%2")
                                .arg(orvane::pageName(page), rows);
}

} // namespace

/// Files of settings that are exported and imported, and the page of the documentation.
class TestSettingsFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_fileName = m_folder->filePath(QStringLiteral("settings.ini"));
        m_settings = std::make_unique<AppSettings>(AppSettings::Mode::None, QString());
    }

    void whatIsWrittenIsRead()
    {
        SettingsStore& mine = SettingsStore::of(*m_settings);
        mine.set(QStringLiteral("view/grid"), false);
        mine.set(QStringLiteral("history/limit"), 64);
        mine.set(QStringLiteral("plugins/folder"), QStringLiteral("/a \"b\"; c,\\d/ä"));
        m_settings->setValue(QStringLiteral("recentFiles"), QStringList{QStringLiteral("/a"), QStringLiteral("/b")});
        QVERIFY(orvane::writeSettings(mine, m_fileName));
        QVERIFY(readFile(m_fileName).contains("version=2"));
        QVERIFY(!readFile(m_fileName).contains("recentFiles"));
        AppSettings other(AppSettings::Mode::None, QString());
        const auto changes = orvane::readSettings(SettingsStore::of(other), m_fileName);
        QVERIFY2(changes, qPrintable(changes.error()));
        QCOMPARE(changes.value().size(), 3U);
        for (const orvane::SettingChange& change : changes.value()) {
            QCOMPARE(change.before, change.setting->defaultValue);
            QCOMPARE(change.after, mine.ownValue(*change.setting));
        }
        const auto same = orvane::readSettings(mine, m_fileName);
        QVERIFY(same && same.value().empty());
    }

    void anOlderFileIsConverted()
    {
        writeFile(m_fileName, "[view]\nhandles=view.handlesScale\n[window]\nstate=anything\n");
        const auto changes = orvane::readSettings(SettingsStore::of(*m_settings), m_fileName);
        QVERIFY2(changes, qPrintable(changes.error()));
        QCOMPARE(changes.value().size(), 1U);
        QCOMPARE(changes.value().front().after, QVariant(QStringLiteral("scale")));
    }

    void aBadFileIsRefusedWithLineAndReason_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no setting") << QByteArray("[view]\ngrid=true\nwhat\n") << QStringLiteral("line 3");
        QTest::newRow("no choice") << QByteArray("[view]\n\nshading=pink\n") << QStringLiteral("line 3: view/shading");
        QTest::newRow("out of range") << QByteArray("[settings]\nversion=2\n[history]\nlimit=0\n")
                                      << QStringLiteral("line 4: history/limit");
        QTest::newRow("later version") << QByteArray("[settings]\nversion=3\n") << QStringLiteral("line 2");
        QTest::newRow("no version") << QByteArray("[settings]\nversion=many\n") << QStringLiteral("line 2");
        QTest::newRow("nulls") << QByteArray(100, '\0') << QStringLiteral("line 1");
        QTest::newRow("empty") << QByteArray() << QStringLiteral("no settings");
        QTest::newRow("something else") << QByteArray("[a]\nb=1\n") << QStringLiteral("no settings");
    }

    void aBadFileIsRefusedWithLineAndReason()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, reason);
        writeFile(m_fileName, bytes);
        const auto changes = orvane::readSettings(SettingsStore::of(*m_settings), m_fileName);
        QVERIFY(!changes);
        QVERIFY2(changes.error().startsWith(m_fileName), qPrintable(changes.error()));
        QVERIFY2(changes.error().contains(reason), qPrintable(changes.error()));
        QCOMPARE(readFile(m_fileName), bytes);
    }

    void aFolderIsNoFile()
    {
        QVERIFY(!orvane::readSettings(SettingsStore::of(*m_settings), m_folder->path()));
        QVERIFY(!orvane::writeSettings(SettingsStore::of(*m_settings), m_folder->path()));
    }

    void settingsArePutAwayBesideTheFile()
    {
        const auto none = orvane::putSettingsAway(m_fileName);
        QVERIFY(none && none.value().isEmpty());
        for (const char* const name : {".old", ".old2"}) {
            writeFile(m_fileName, name);
            const auto kept = orvane::putSettingsAway(m_fileName);
            QVERIFY(kept);
            QCOMPARE(kept.value(), m_fileName + QLatin1String(name));
            QVERIFY(!QFile::exists(m_fileName));
            QCOMPARE(readFile(kept.value()), QByteArray(name));
        }
    }

    void thePageListsAllSettings()
    {
        const QString page = QString::fromUtf8(readFile(QStringLiteral(ORVANE_SETTINGS_PAGE)));
        QVERIFY(!page.isEmpty());
        for (const SettingPage one : allSettingPages) {
            const QString table = tableOf(one);
            QVERIFY2(page.contains(table), qPrintable(u'\n' + table));
        }
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<AppSettings> m_settings;
    QString m_fileName;
};

QTEST_GUILESS_MAIN(TestSettingsFile)
#include "tst_SettingsFile.moc"
