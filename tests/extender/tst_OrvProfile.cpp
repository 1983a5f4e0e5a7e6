#include "extender/Recording.h"

#include "orvane/extender/OrvProfile.h"
#include "orvane/extender/ReplacedEditors.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// Docks a and b run by themselves, x and y are editors.
class TestOrvProfile : public QObject {
    Q_OBJECT

    QStringList m_calls;
    RecordingExtension m_a{u"a"_s, m_calls};
    RecordingExtension m_b{u"b"_s, m_calls};
    RecordingEditor m_x{u"x"_s, m_calls};
    RecordingEditor m_y{u"y"_s, m_calls};
    const QList<OrvExtension*> m_extensions{&m_a, &m_x, &m_b, &m_y};

    /// The names of what an extension controls, in alphabetical order, or "-" where the profile doesn't run it.
    static QString controlledBy(const OrvProfile& profile, const OrvExtension& extension)
    {
        const OrvProfileSetting* const setting = profile.getSetting(&extension);
        if (setting == nullptr)
            return u"-"_s;
        QStringList names;
        for (const auto& [controlled, itsSetting] : setting->getControlledExtensions())
            names.append(orvane::toQString(controlled->getName()));
        names.sort();
        return names.join(QString());
    }

private Q_SLOTS:
    void theFirstOfTwoEntriesCounts()
    {
        OrvProfile profile(u"P"_s, {{u"a"_s, true, {u"b"_s}}, {u"a"_s, false, {}}});
        profile.resolve(m_extensions);
        QCOMPARE(controlledBy(profile, m_a), u"b"_s);
    }

    void replacedEditorsAreLeftOut_data()
    {
        QTest::addColumn<QStringList>("byX");
        QTest::addColumn<QStringList>("byY");
        QTest::addColumn<QStringList>("controlled");
        QTest::addColumn<QString>("a");

        const QStringList x{u"x"_s};
        const QStringList y{u"y"_s};
        const QStringList all{u"*"_s};
        QTest::newRow("one") << QStringList() << x << all << u"by"_s;
        QTest::newRow("named in the profile") << QStringList() << x << QStringList{u"x"_s, u"y"_s} << u"y"_s;
        QTest::newRow("by one that isn't controlled") << QStringList() << x << x << u"x"_s;
        QTest::newRow("each other") << y << x << all << u"bx"_s;
        QTest::newRow("itself") << x << QStringList() << all << u"bxy"_s;
        QTest::newRow("one that isn't there") << QStringList{u"z"_s} << QStringList() << all << u"bxy"_s;
    }
    void replacedEditorsAreLeftOut()
    {
        QFETCH(QStringList, byX);
        QFETCH(QStringList, byY);
        QFETCH(QStringList, controlled);
        QFETCH(QString, a);
        orvane::setReplacedEditors(m_x, byX);
        orvane::setReplacedEditors(m_y, byY);
        OrvProfile profile(u"P"_s, {{u"a"_s, true, controlled}});
        profile.resolve(m_extensions);
        QCOMPARE(controlledBy(profile, m_a), a);
        orvane::setReplacedEditors(m_x, {});
        orvane::setReplacedEditors(m_y, {});
    }

    void anEditorThatIsReplacedItselfStillReplaces()
    {
        // y replaces x, and x the dock b.
        orvane::setReplacedEditors(m_x, {u"b"_s});
        orvane::setReplacedEditors(m_y, {u"x"_s});
        OrvProfile profile(u"P"_s, {{u"a"_s, true, {u"*"_s}}});
        profile.resolve(m_extensions);
        QCOMPARE(controlledBy(profile, m_a), u"y"_s);
        orvane::setReplacedEditors(m_x, {});
        orvane::setReplacedEditors(m_y, {});
    }

    void aFileThatCannotBeReadIsReported()
    {
        // Nothing is at its beginning, which is the address zero.
        const QString fileName = u"/proc/self/mem"_s;
        const auto result = OrvProfile::read(fileName);
        QVERIFY(result.profile == nullptr);
        QCOMPARE(result.error, fileName + u": Input/output error"_s);
    }

    void namesBecomeSettings_data()
    {
        QTest::addColumn<QByteArray>("extensions");
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<QStringList>("missing");

        const auto row = [](const char* name, const char* json, const char* a, const char* b,
                             const char* missing = "") {
            QTest::newRow(name) << QByteArray(json) << QString::fromUtf8(a) << QString::fromUtf8(b) << words(missing);
        };
        row("nothing is named", R"({})", "-", "-");
        row("everything controls everything", R"({"*": ["*"]})", "bxy", "axy");
        row("true controls nothing", R"({"*": true})", "", "");
        row("an empty list controls nothing", R"({"a": []})", "", "-");
        row("false doesn't run", R"({"*": ["x"], "a": false})", "-", "x");
        row("an own entry goes before the star", R"({"a": ["y"], "*": ["*"]})", "y", "axy");
        row("all but itself by name", R"({"a": ["b", "x"]})", "bx", "-");
        row("the star beside names", R"({"a": ["*", "x"]})", "bxy", "-");
        row("missing controlled", R"({"a": ["x", "z", "q"], "b": ["z"]})", "x", "", "z q");
        row("missing extension", R"({"c": ["x"]})", "-", "-", "c");
        row("missing but not to run", R"({"c": false})", "-", "-");
        row("an editor doesn't run by itself", R"({"x": true})", "-", "-", "x");
        row("names tell upper from lower case", R"({"A": true})", "-", "-", "A");
    }
    void namesBecomeSettings()
    {
        QFETCH(QByteArray, extensions);
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(QStringList, missing);

        const auto read = OrvProfile::fromJson(R"({"name": "P", "extensions": )" + extensions + "}", u"p.json"_s);
        QVERIFY2(read.profile != nullptr, qPrintable(read.error));
        QVERIFY(read.error.isEmpty());
        QCOMPARE(read.profile->resolve(m_extensions), missing);
        QCOMPARE(controlledBy(*read.profile, m_a), a);
        QCOMPARE(controlledBy(*read.profile, m_b), b);
        QVERIFY(read.profile->getSetting(&m_x) == nullptr);
    }

    void aControlledExtensionThatRunsComesWithItsSettingAndAnotherWithNone()
    {
        OrvProfile profile(u"P"_s, {{u"*"_s, true, {u"*"_s}}});
        profile.resolve(m_extensions);
        const auto& controlled = profile.getSetting(&m_a)->getControlledExtensions();
        QCOMPARE(controlled.at(&m_b), profile.getSetting(&m_b));
        QVERIFY(controlled.at(&m_x) == nullptr);
    }

    void anExtensionNeverControlsItself()
    {
        OrvProfile profile(u"P"_s, {{u"a"_s, true, {u"a"_s, u"x"_s}}});
        profile.resolve(m_extensions);
        QCOMPARE(controlledBy(profile, m_a), u"x"_s);
    }

    void resolvingAgainReplacesTheSettings()
    {
        OrvProfile profile(u"P"_s, {{u"*"_s, true, {u"*"_s}}});
        profile.resolve(m_extensions);
        profile.resolve({&m_b, &m_y});
        QVERIFY(profile.getSetting(&m_a) == nullptr);
        QCOMPARE(controlledBy(profile, m_b), u"y"_s);
    }

    void theNameComesBackInUnicode()
    {
        const QString name = u"Übersicht \u30ce"_s;
        QCOMPARE(orvane::toQString(OrvProfile(name, {}).getName()), name);
    }

    void aFileIsRead()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"p.json"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("\xEF\xBB\xBF{\"name\": \"From a file\", \"extensions\": {}}\r\n");
        file.close();
        const auto read = OrvProfile::read(file.fileName());
        QVERIFY2(read.profile != nullptr, qPrintable(read.error));
        QCOMPARE(orvane::toQString(read.profile->getName()), u"From a file"_s);
    }

    void aFileThatCannotBeReadIsTold()
    {
        const QTemporaryDir folder;
        const QString missing = folder.filePath(u"missing.json"_s);
        QCOMPARE(OrvProfile::read(missing).error, missing + u": No such file or directory"_s);
        QCOMPARE(OrvProfile::read(folder.path()).error, folder.path() + u": it is a folder, not a profile"_s);
    }

    void aHugeFileIsRefusedUnread()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"huge.json"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(qint64(1) << 33));
        QCOMPARE(OrvProfile::read(file.fileName()).error,
            file.fileName() + u": it is larger than a profile may be, which is 1 MiB"_s);
    }

    void theShippedProfilesAreSound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("all-editors.json") << u"All editors"_s;
        QTest::newRow("text-only.json") << u"Text only"_s;
        QTest::newRow("inspection.json") << u"Inspection"_s;
    }
    void theShippedProfilesAreSound()
    {
        QFETCH(QString, name);
        const auto read
            = OrvProfile::read(QStringLiteral(SHIPPED_PROFILES "/") + QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY2(read.profile != nullptr, qPrintable(read.error));
        QCOMPARE(orvane::toQString(read.profile->getName()), name);

        RecordingExtension console(u"Console"_s, m_calls);
        RecordingExtension dock(u"Field Editor"_s, m_calls);
        RecordingEditor single(u"SField"_s, m_calls);
        RecordingEditor list(u"MField"_s, m_calls);
        RecordingEditor number(u"SFFloat"_s, m_calls);
        QCOMPARE(read.profile->resolve({&console, &dock, &single, &list, &number}), QStringList());
        const bool isText = name == u"Text only";
        QCOMPARE(controlledBy(*read.profile, dock), isText ? u"MFieldSField"_s : u"ConsoleMFieldSFFloatSField"_s);
        QCOMPARE(read.profile->getSetting(&console) == nullptr, name == u"Inspection");
    }
};

QTEST_APPLESS_MAIN(TestOrvProfile)
#include "tst_OrvProfile.moc"
