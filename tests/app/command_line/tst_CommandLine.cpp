#include "orvane/app/command_line/CommandLine.h"

#include <QTest>

class TestCommandLine : public QObject {
    Q_OBJECT

private:
    static orvane::Result<CommandLine> parse(const QStringList& arguments)
    {
        return CommandLine::parse(QStringList{QStringLiteral("orvane")} + arguments);
    }

private Q_SLOTS:
    void nothingAsksForAnEmptyWindow()
    {
        const auto parsed = parse({});
        QVERIFY(parsed);
        const CommandLine& commandLine = parsed.value();
        QVERIFY(commandLine.file.isEmpty());
        QVERIFY(!commandLine.isBatch());
    }

    void everyOptionIsTaken()
    {
        const auto parsed = parse({QStringLiteral("--plugin"), QStringLiteral("a.so"), QStringLiteral("--plugin=b.so"),
            QStringLiteral("--profile"), QStringLiteral("Text only"), QStringLiteral("--select"), QStringLiteral("/a"),
            QStringLiteral("--set"), QStringLiteral("/a.b=1"), QStringLiteral("--set"),
            QStringLiteral("/\"x=y\".b=c=d"), QStringLiteral("--get"), QStringLiteral("/a.b"), QStringLiteral("--list"),
            QStringLiteral("--list-extensions"), QStringLiteral("--export"), QStringLiteral("out.obj"),
            QStringLiteral("--export=out.stl"), QStringLiteral("--screenshot"), QStringLiteral("p.png"),
            QStringLiteral("--size"), QStringLiteral("640x480"), QStringLiteral("--no-settings"),
            QStringLiteral("in.mrd")});
        QCOMPARE(parsed.error(), QString());
        const CommandLine& commandLine = parsed.value();
        QCOMPARE(commandLine.plugins, QStringList({QStringLiteral("a.so"), QStringLiteral("b.so")}));
        QCOMPARE(commandLine.profile, QStringLiteral("Text only"));
        QCOMPARE(commandLine.select, QStringLiteral("/a"));
        QCOMPARE(commandLine.assignments.size(), 2);
        QCOMPARE(commandLine.assignments[0].path, QStringLiteral("/a.b"));
        QCOMPARE(commandLine.assignments[0].text, QStringLiteral("1"));
        QCOMPARE(commandLine.assignments[1].path, QStringLiteral("/\"x=y\".b"));
        QCOMPARE(commandLine.assignments[1].text, QStringLiteral("c=d"));
        QCOMPARE(commandLine.queries, QStringList({QStringLiteral("/a.b")}));
        QVERIFY(commandLine.list);
        QVERIFY(commandLine.listExtensions);
        QCOMPARE(commandLine.exportFiles, QStringList({QStringLiteral("out.obj"), QStringLiteral("out.stl")}));
        QCOMPARE(commandLine.screenshotFile, QStringLiteral("p.png"));
        QCOMPARE(commandLine.size, QSize(640, 480));
        QVERIFY(commandLine.noSettings);
        QCOMPARE(commandLine.file, QStringLiteral("in.mrd"));
    }

    void classesToDescribeAreTaken()
    {
        const auto all = parse({QStringLiteral("--describe")});
        QVERIFY(all);
        QVERIFY(all.value().describe && all.value().classes.isEmpty() && all.value().isBatch());
        QVERIFY(!all.value().needsExtensions());
        const auto two = parse({QStringLiteral("--json"), QStringLiteral("--describe"), QStringLiteral("Group"),
            QStringLiteral("Mesh"), QStringLiteral("--plugin=a.so")});
        QVERIFY(two);
        QCOMPARE(two.value().classes, QStringList({QStringLiteral("Group"), QStringLiteral("Mesh")}));
        QVERIFY(two.value().file.isEmpty());
        QVERIFY(two.value().json && two.value().needsExtensions());
    }

    void unusableArgumentsAreRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("mentions");
        QTest::newRow("unknown option") << QStringList{QStringLiteral("--nonsense")} << QStringLiteral("nonsense");
        QTest::newRow("two files") << QStringList{QStringLiteral("a.mrd"), QStringLiteral("b.mrd")}
                                   << QStringLiteral("b.mrd");
        QTest::newRow("set without equals")
            << QStringList{QStringLiteral("--set=/a.b"), QStringLiteral("a.mrd")} << QStringLiteral("PATH=TEXT");
        QTest::newRow("set without path")
            << QStringList{QStringLiteral("--set==1"), QStringLiteral("a.mrd")} << QStringLiteral("PATH=TEXT");
        QTest::newRow("option without value") << QStringList{QStringLiteral("--get")} << QStringLiteral("get");
        QTest::newRow("size without height") << QStringList{QStringLiteral("--size=640")} << QStringLiteral("WxH");
        QTest::newRow("size of nothing") << QStringList{QStringLiteral("--size=0x0")} << QStringLiteral("WxH");
        QTest::newRow("size of nothing in one direction")
            << QStringList{QStringLiteral("--size=640x0")} << QStringLiteral("WxH");
        QTest::newRow("size below nothing") << QStringList{QStringLiteral("--size=-640x480")} << QStringLiteral("WxH");
        QTest::newRow("size with more behind it")
            << QStringList{QStringLiteral("--size=640x480x24")} << QStringLiteral("WxH");
        QTest::newRow("size beyond all numbers")
            << QStringList{QStringLiteral("--size=99999999999x480")} << QStringLiteral("WxH");
        QTest::newRow("side that is too long")
            << QStringList{QStringLiteral("--size=8193x1")} << QStringLiteral("8192");
        QTest::newRow("too many pixels") << QStringList{QStringLiteral("--size=8192x8192")}
                                         << QStringLiteral("33 million");
        for (const char* const option : {"--plugin", "--profile", "--select", "--set", "--get", "--export",
                 "--screenshot", "--picture", "--camera", "--background", "--size"}) {
            QTest::addRow("empty %s", option) << QStringList{QLatin1String(option), QString(), QStringLiteral("a.mrd")}
                                              << QString::fromLatin1(option);
        }
        QTest::newRow("empty file") << QStringList{QString()} << QStringLiteral("empty");
        QTest::newRow("one empty export of two")
            << QStringList{QStringLiteral("--export=a.obj"), QStringLiteral("--export="), QStringLiteral("a.mrd")}
            << QStringLiteral("--export");
        for (const char* const option : {"--profile=a", "--select=/a", "--screenshot=a.png", "--size=10x10"}) {
            const QString text = QLatin1String(option);
            QTest::addRow("twice %s", option)
                << QStringList{text, text, QStringLiteral("a.mrd")} << text.section(u'=', 0, 0) + u' ';
        }
        for (const char* const option : {"--picture=a.png", "--camera=/a", "--background=red"}) {
            const QString text = QLatin1String(option);
            QTest::addRow("twice %s", option) << QStringList{QStringLiteral("--picture=b.png"), text, text,
                QStringLiteral("a.mrd")} << text.section(u'=', 0, 0) + u' ';
        }
        QTest::newRow("picture without file")
            << QStringList{QStringLiteral("--picture=a.png")} << QStringLiteral("file");
        QTest::newRow("picture and screenshot") << QStringList{QStringLiteral("--picture=a.png"),
            QStringLiteral("--screenshot=b.png"), QStringLiteral("a.mrd")}
                                                << QStringLiteral("together");
        QTest::newRow("camera without picture")
            << QStringList{QStringLiteral("--camera=/a"), QStringLiteral("a.mrd")} << QStringLiteral("--picture");
        QTest::newRow("background without picture")
            << QStringList{QStringLiteral("--background=red"), QStringLiteral("a.mrd")} << QStringLiteral("--picture");
        QTest::newRow("no color") << QStringList{QStringLiteral("--picture=a.png"), QStringLiteral("--background=soft"),
            QStringLiteral("a.mrd")}
                                  << QStringLiteral("soft");
        QTest::newRow("picture that is too large")
            << QStringList{QStringLiteral("--picture=a.png"), QStringLiteral("--size=32768x1"), QStringLiteral("a.mrd")}
            << QStringLiteral("32767");
        QTest::newRow("json alone") << QStringList{QStringLiteral("--json"), QStringLiteral("a.mrd")}
                                    << QStringLiteral("--diff");
        for (const char* const option :
            {"--get=/a.b", "--set=/a.b=1", "--select=/a", "--list", "--list-extensions", "--export=a.obj",
                "--screenshot=a.png", "--picture=a.png", "--diff", "--check", "--watch", "--size=640x480"}) {
            const QString text = QLatin1String(option);
            QTest::addRow("describe with %s", option)
                << QStringList{QStringLiteral("--describe"), text} << text.section(u'=', 0, 0);
        }
        QTest::newRow("description of an empty name")
            << QStringList{QStringLiteral("--describe"), QString()} << QStringLiteral("empty");
        QTest::newRow("check and diff") << QStringList{QStringLiteral("--check"), QStringLiteral("--diff"),
            QStringLiteral("a.mrd"), QStringLiteral("b.mrd")}
                                        << QStringLiteral("together");
        QTest::newRow("check without file") << QStringList{QStringLiteral("--check")} << QStringLiteral("file");
        QTest::newRow("check of two files") << QStringList{QStringLiteral("--check"), QStringLiteral("a.mrd"),
            QStringLiteral("b.mrd")} << QStringLiteral("One file");
        QTest::newRow("diff of nothing") << QStringList{QStringLiteral("--diff")} << QStringLiteral("two files");
        QTest::newRow("diff of one file")
            << QStringList{QStringLiteral("--diff"), QStringLiteral("a.mrd")} << QStringLiteral("two files");
        QTest::newRow("diff of three files") << QStringList{QStringLiteral("--diff"), QStringLiteral("a.mrd"),
            QStringLiteral("b.mrd"), QStringLiteral("c.mrd")}
                                             << QStringLiteral("two files");
        QTest::newRow("diff of an empty name")
            << QStringList{QStringLiteral("--diff"), QStringLiteral("a.mrd"), QString()} << QStringLiteral("empty");
        for (const char* const option : {"--get=/a.b", "--list", "--list-extensions", "--export=a.obj",
                 "--screenshot=a.png", "--diff", "--check"}) {
            const QString text = QLatin1String(option);
            QTest::addRow("watch with %s", option)
                << QStringList{QStringLiteral("--watch"), text, QStringLiteral("a.mrd")} << text.section(u'=', 0, 0);
        }
        QTest::newRow("watch without file") << QStringList{QStringLiteral("--watch")} << QStringLiteral("file");
        QTest::newRow("get without file") << QStringList{QStringLiteral("--get=/a.b")} << QStringLiteral("file");
        QTest::newRow("export without file") << QStringList{QStringLiteral("--export=a.obj")} << QStringLiteral("file");
    }

    void unusableArgumentsAreRefused()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, mentions);
        const QString error = parse(arguments).error();
        QVERIFY2(error.contains(mentions), qPrintable(error));
        QVERIFY(!error.contains(u'\n'));
    }

    void twoFilesAreTakenToBeCompared()
    {
        for (const QStringList& arguments :
            {QStringList{QStringLiteral("--diff"), QStringLiteral("a.mrd"), QStringLiteral("b.glb")},
                {QStringLiteral("a.mrd"), QStringLiteral("--diff"), QStringLiteral("b.glb")},
                {QStringLiteral("a.mrd"), QStringLiteral("b.glb"), QStringLiteral("--diff")}}) {
            const auto parsed = parse(arguments);
            QCOMPARE(parsed.error(), QString());
            const CommandLine& commandLine = parsed.value();
            QVERIFY(commandLine.diff && commandLine.isBatch() && !commandLine.json);
            QCOMPARE(commandLine.file, QStringLiteral("a.mrd"));
            QCOMPARE(commandLine.secondFile, QStringLiteral("b.glb"));
            QCOMPARE(commandLine.failureStatus(), 2);
        }
        QCOMPARE(parse({QStringLiteral("--list"), QStringLiteral("a.mrd")}).value().failureStatus(), 1);
    }

    void aCheckIsBatchWorkWithAStatusOfItsOwn()
    {
        const auto parsed = parse({QStringLiteral("--check"), QStringLiteral("--json"), QStringLiteral("a.glb")});
        QCOMPARE(parsed.error(), QString());
        const CommandLine& commandLine = parsed.value();
        QVERIFY(commandLine.check && commandLine.json && commandLine.isBatch() && !commandLine.needsExtensions());
        QCOMPARE(commandLine.failureStatus(), 3);
    }

    void aPictureIsBatchWork()
    {
        const auto parsed = parse({QStringLiteral("--picture=a.png"), QStringLiteral("--size=16384x16384"),
            QStringLiteral("--camera=/a"), QStringLiteral("--background=#102030"), QStringLiteral("a.glb")});
        QCOMPARE(parsed.error(), QString());
        const CommandLine& commandLine = parsed.value();
        QVERIFY(commandLine.isBatch() && !commandLine.needsExtensions());
        QCOMPARE(commandLine.pictureFile, QStringLiteral("a.png"));
        QCOMPARE(commandLine.size, QSize(16384, 16384));
        QCOMPARE(commandLine.camera, QStringLiteral("/a"));
        QCOMPARE(commandLine.background, QStringLiteral("#102030"));
    }

    void theLargestSizesAreTaken()
    {
        QCOMPARE(parse({QStringLiteral("--size=7680x4320")}).error(), QString());
        QCOMPARE(parse({QStringLiteral("--size=8192x4096")}).error(), QString());
        QCOMPARE(parse({QStringLiteral("--size=1x8192")}).error(), QString());
    }

    void extensionsAreLoadedForAWindowAndWhereTheyAreAskedFor()
    {
        const QString file = QStringLiteral("a.mrd");
        const QString list = QStringLiteral("--list");
        QVERIFY(!parse({list, file}).value().needsExtensions());
        QVERIFY(parse({file}).value().needsExtensions());
        QVERIFY(parse({QStringLiteral("--list-extensions")}).value().needsExtensions());
        QVERIFY(parse({list, QStringLiteral("--plugin=p.so"), file}).value().needsExtensions());
        QVERIFY(parse({list, QStringLiteral("--profile=All"), file}).value().needsExtensions());
    }

    void onlyOutputWithoutAPictureIsBatchWork()
    {
        const QString file = QStringLiteral("a.mrd");
        QVERIFY(parse({QStringLiteral("--list"), file}).value().isBatch());
        QVERIFY(parse({QStringLiteral("--list-extensions")}).value().isBatch());
        QVERIFY(parse({QStringLiteral("--get=/a.b"), file}).value().isBatch());
        QVERIFY(parse({QStringLiteral("--export=b.mrd"), file}).value().isBatch());
        QVERIFY(!parse({QStringLiteral("--set=/a.b=1"), file}).value().isBatch());
        QVERIFY(!parse({QStringLiteral("--list"), QStringLiteral("--screenshot=p.png"), file}).value().isBatch());
    }

    void settingsAreOfAnotherFileOrReset()
    {
        const auto other = parse({QStringLiteral("--settings=/tmp/other.ini"), QStringLiteral("a.mrd")});
        QVERIFY(other);
        QCOMPARE(other.value().settingsFileName(), QStringLiteral("/tmp/other.ini"));
        QCOMPARE(other.value().settingsMode(), AppSettings::Mode::File);
        QCOMPARE(parse({}).value().settingsFileName(), AppSettings::defaultFileName());
        QVERIFY(!parse({QStringLiteral("--settings=/tmp/other.ini"), QStringLiteral("--no-settings")}));
        QVERIFY(!parse({QStringLiteral("--settings=")}));
        QVERIFY(parse({QStringLiteral("--reset-settings")}).value().resetSettings);
        QVERIFY(parse({QStringLiteral("--reset-settings"), QStringLiteral("--settings=/tmp/other.ini")}));
        QVERIFY(!parse({QStringLiteral("--reset-settings"), QStringLiteral("a.mrd")}));
        QVERIFY(!parse({QStringLiteral("--reset-settings"), QStringLiteral("--list"), QStringLiteral("a.mrd")}));
    }

    void helpNamesEveryOption()
    {
        const QString help = CommandLine::helpText();
        for (const char* const option :
            {"--plugin", "--profile", "--select", "--set", "--get", "--list", "--list-extensions", "--diff", "--check",
                "--json", "--export", "--screenshot", "--picture", "--camera", "--background", "--size", "--watch",
                "--keep-groups", "--no-settings", "--settings", "--reset-settings", "--version", "--help"})
            QVERIFY2(help.contains(QLatin1String(option)), option);
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_CommandLine.moc"
