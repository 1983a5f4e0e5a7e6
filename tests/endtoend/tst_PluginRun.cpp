#include "endtoend/ProgramCase.h"

#include <QDir>

// Plug-ins that end the program, and what the next start makes of them.
class TestPluginRun : public ProgramCase {
    Q_OBJECT

    [[nodiscard]] QString plugin() const { return path(QStringLiteral("libkal_orvane_extender_bad.so")); }

    /// Runs the program with the settings and plug-ins of the test's folder alone.
    [[nodiscard]] Outcome runWithSettings(const QStringList& arguments) const
    {
        return runShell(QStringLiteral("export HOME=\"$PWD\" XDG_CONFIG_HOME=\"$PWD/config\" "
                                       "XDG_STATE_HOME=\"$PWD/state\" ORVANE_PLUGIN_PATH=\"$PWD\"; exec \"$0\" \"$@\""),
            QStringList{QStringLiteral(ORVANE_PROGRAM)} + arguments);
    }

    [[nodiscard]] static QString brokenPath(const QString& name)
    {
        return QStringLiteral(BROKEN_PLUGIN_FOLDER "/lib%1.so").arg(name);
    }

    /// Starts the program and kills it as soon as it has noted that it loads the plug-in, as a user does who waits for
    /// the window in vain.
    void killWhileLoading() const
    {
        const QString command = QStringLiteral("export HOME=\"$PWD\" XDG_CONFIG_HOME=\"$PWD/config\" "
                                               "XDG_STATE_HOME=\"$PWD/state\" ORVANE_PLUGIN_PATH=\"$PWD\"; "
                                               "\"$0\" --list-extensions & program=$!; "
                                               "until grep -qs _bad.so state/orvane/loading/*.loading; do "
                                               "kill -0 $program || exit 3; sleep 0.05; done; "
                                               "kill -9 $program; wait $program; exit 0");
        QCOMPARE(runShell(command, {QStringLiteral(ORVANE_PROGRAM)}).status, 0);
    }

    [[nodiscard]] Outcome runWithGear(const QStringList& arguments) const
    {
        return run(QStringList{QStringLiteral("--plugin"), brokenPath(QStringLiteral("Gear"))} + arguments);
    }

private Q_SLOTS:
    void init() { makeFolder(); }

    void aPluginThatEndsTheProgramIsLeftOutAtTheNextStart_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("aborts") << QStringLiteral(ABORTING_PLUGIN);
        for (const char* const name : {"CrashesWhileLoading", "ExitsWhileLoading", "HangsWhileLoading"})
            QTest::newRow(name) << brokenPath(QString::fromLatin1(name));
    }
    void aPluginThatEndsTheProgramIsLeftOutAtTheNextStart()
    {
        QFETCH(const QString, file);
        QVERIFY(QFile::copy(file, plugin()));
        const QStringList arguments{QStringLiteral("--list-extensions")};
        if (file.contains(QStringLiteral("Hangs")))
            killWhileLoading();
        else
            QVERIFY(!runWithSettings(arguments).output.contains("DvSFFloatWidget"));
        for (int start = 0; start < 2; ++start) {
            const Outcome next = runWithSettings(arguments);
            QCOMPARE(next.status, 0);
            QVERIFY2(next.errors.contains("libkal_orvane_extender_bad.so: it is left out"), next.errors.constData());
            QVERIFY(next.output.contains("\tDvSFFloatWidget\tSFFloat\tSFFloat\n"));
        }
    }

    void noPluginsLoadsNone()
    {
        QVERIFY(QFile::copy(QStringLiteral(ABORTING_PLUGIN), plugin()));
        const Outcome outcome = runWithSettings({QStringLiteral("--no-plugins"), QStringLiteral("--list-extensions")});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output, QByteArray());
    }

    void onlyTheOneThatIsNamedIsLoadedWithNoPlugins()
    {
        QVERIFY(QFile::copy(QStringLiteral(ABORTING_PLUGIN), plugin()));
        const Outcome outcome = runWithSettings({QStringLiteral("--no-plugins"), QStringLiteral("--list-extensions"),
            QStringLiteral("--plugin"), QStringLiteral(SAMPLE_PLUGIN)});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output.count('\n'), 3);
        QVERIFY2(outcome.output.contains("\tCompass Bar\t"), outcome.output.constData());
    }

    // A field that has its default isn't in the file, so that only the class knows it.
    void theClassesOfTheNamedPluginsAreKnownWithoutAWindow()
    {
        write(QStringLiteral("a.mrd"), "#mrd 1.0\nBrokenGear \"wheel\" {}\n");
        write(QStringLiteral("b.mrd"), "#mrd 1.0\nBrokenGear \"wheel\" {\n    teeth = 12\n}\n");
        const QString get = QStringLiteral("--get");
        const QString teeth = QStringLiteral("/wheel.teeth");
        const QString a = QStringLiteral("a.mrd");
        QCOMPARE(run({get, teeth, a}).status, 1);
        QCOMPARE(runWithGear({get, teeth, a}).output, QByteArray("12\n"));
        const Outcome list = runWithGear({QStringLiteral("--list"), a});
        QVERIFY2(list.output.contains("/wheel.teeth\tSFInt32\t12"), list.output.constData());
        QCOMPARE(run({QStringLiteral("--diff"), a, QStringLiteral("b.mrd")}).status, 1);
        QCOMPARE(runWithGear({QStringLiteral("--diff"), a, QStringLiteral("b.mrd")}).status, 0);
        QVERIFY(run({QStringLiteral("--check"), a}).output.contains("unknown-class"));
        QVERIFY(!runWithGear({QStringLiteral("--check"), a}).output.contains("unknown-class"));
        const QString set = QStringLiteral("/wheel.teeth=7");
        const Outcome exported
            = runWithGear({QStringLiteral("--set"), set, QStringLiteral("--export"), QStringLiteral("c.mrd"), a});
        QCOMPARE(exported.errors, QByteArray());
        QVERIFY2(read(QStringLiteral("c.mrd")).contains("teeth = 7"), read(QStringLiteral("c.mrd")).constData());
    }
};

QTEST_GUILESS_MAIN(TestPluginRun)
#include "tst_PluginRun.moc"
