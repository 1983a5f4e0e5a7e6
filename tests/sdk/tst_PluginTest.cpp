#include <QProcess>
#include <QTest>

// The program that tries plug-ins.
class TestPluginTest : public QObject {
    Q_OBJECT

    struct Outcome {
        int status = -1;
        QString output;
        QString errors;
    };

    static Outcome run(const QStringList& arguments)
    {
        QProcess program;
        program.start(QStringLiteral(PLUGIN_TEST_PROGRAM), arguments);
        constexpr int longest = 600'000;
        if (!program.waitForFinished(longest))
            return {-1, {}, program.errorString()};
        const bool hasEnded = program.exitStatus() == QProcess::NormalExit;
        return {hasEnded ? program.exitCode() : -1, QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
    }

private Q_SLOTS:
    void aSoundPluginPassesEachStep()
    {
        const Outcome outcome = run({QStringLiteral(SAMPLE_PLUGIN)});
        QCOMPARE(outcome.output,
            QStringLiteral("ok: loaded: 3 extension(s), 1 class(es) of nodes\n"
                           "ok: \"SFHeading\": edited and undone\n"
                           "ok: \"Compass\": edited and undone\n"
                           "ok: docks and tool bars, with a node of the class FieldGallery\n"
                           "ok: docks and tool bars, with a node of the class Compass\n"
                           "ok: saved, and read again with and without the plug-in\n"
                           "ok: profiles switched\n"
                           "ok: unloaded\n"));
        QCOMPARE(outcome.status, 0);
    }

    void anUntidyPluginFailsWithAReasonForEachStep()
    {
        const Outcome outcome = run({QStringLiteral(UNTIDY_PLUGIN)});
        QCOMPARE(outcome.status, 1);
        const auto has = [&](const char* line) {
            return outcome.output.contains(QLatin1String("FAILED: ") + QLatin1String(line));
        };
        QVERIFY2(has("editing with \"SFFloat\": it changed the scene by being shown"), qPrintable(outcome.output));
        QVERIFY2(has("switching profiles: deactivated extensions left behind: the dock \"Staying Dock\", the "
                     "announcement of \"Staying Dock\""),
            qPrintable(outcome.output));
        QVERIFY2(has("unloading: it left a widget behind: QWidget \"stray\""), qPrintable(outcome.output));
    }

    void aPluginThatDoesNotLoadFailsWithTheReason()
    {
        const Outcome outcome = run({QStringLiteral(THROWING_PLUGIN)});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.output.startsWith(QStringLiteral("FAILED: loading: ")), qPrintable(outcome.output));
        QVERIFY2(
            outcome.output.contains(QStringLiteral("threw an exception: no such font")), qPrintable(outcome.output));
    }

    void otherArgumentsAreRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("none") << QStringList();
        QTest::newRow("two") << QStringList{QStringLiteral("a.so"), QStringLiteral("b.so")};
        QTest::newRow("an option") << QStringList{QStringLiteral("--what")};
    }
    void otherArgumentsAreRefused()
    {
        QFETCH(QStringList, arguments);
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.status, 2);
        QCOMPARE(outcome.errors.section(u'\n', -2), QStringLiteral("usage: orvane-plugin-test FILE\n"));
    }
};

QTEST_GUILESS_MAIN(TestPluginTest)
#include "tst_PluginTest.moc"
