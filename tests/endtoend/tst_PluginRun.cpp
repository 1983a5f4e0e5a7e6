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

private Q_SLOTS:
    void init()
    {
        makeFolder();
        QVERIFY(QFile::copy(QStringLiteral(ABORTING_PLUGIN), plugin()));
    }

    void aPluginThatEndsTheProgramIsLeftOutAtTheNextStart()
    {
        const QStringList arguments{QStringLiteral("--list-extensions")};
        QCOMPARE(runWithSettings(arguments).status, -1);
        for (int start = 0; start < 2; ++start) {
            const Outcome next = runWithSettings(arguments);
            QCOMPARE(next.status, 0);
            QVERIFY2(next.errors.contains("libkal_orvane_extender_bad.so: it is left out"), next.errors.constData());
            QVERIFY(next.output.contains("\tDvSFFloatWidget\tSFFloat\tSFFloat\n"));
        }
    }

    void noPluginsLoadsNone()
    {
        const Outcome outcome = runWithSettings({QStringLiteral("--no-plugins"), QStringLiteral("--list-extensions")});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output, QByteArray());
    }

    void onlyTheOneThatIsNamedIsLoadedWithNoPlugins()
    {
        const Outcome outcome = runWithSettings({QStringLiteral("--no-plugins"), QStringLiteral("--list-extensions"),
            QStringLiteral("--plugin"), QStringLiteral(SAMPLE_PLUGIN)});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output.count('\n'), 3);
        QVERIFY2(outcome.output.contains("\tCompass Bar\t"), outcome.output.constData());
    }
};

QTEST_GUILESS_MAIN(TestPluginRun)
#include "tst_PluginRun.moc"
