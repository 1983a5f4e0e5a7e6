#include "endtoend/ProgramCase.h"

#include <QDir>
#include <QImage>

namespace {

const QByteArray scene = "#mrd 1.0\n"
                         "Group \"rig\" {\n"
                         "    Material \"paint\" { transparency = 0.25 }\n"
                         "    Mesh \"part\" { positions = [0 0 0, 1 0 0, 0 1 0] }\n"
                         "}\n";
const QString file = QStringLiteral("rig.mrd");
const QString picture = QStringLiteral("window.png");

} // namespace

// The options of the command line beside each other, and what somebody gives who wants to break them.
class TestCombinedRun : public ProgramCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        makeFolder();
        write(file, scene);
    }

    void aPictureIsTakenBesideAllOtherOutput()
    {
        const QStringList others{QStringLiteral("--set=/rig/paint.transparency=0.5"),
            QStringLiteral("--get=/rig/paint.transparency"), QStringLiteral("--list"),
            QStringLiteral("--list-extensions")};
        const QStringList exports{QStringLiteral("--export=one.mrd"), QStringLiteral("--export=two.stl")};
        const Outcome alone = run(others + QStringList(file));
        QCOMPARE(alone.errors, QByteArray());
        QVERIFY(alone.output.contains("\n0.5\n"));
        QVERIFY(alone.output.contains("/rig/part\tMesh\n"));

        const Outcome together = run(others + exports + QStringList{QStringLiteral("--screenshot=window.png"), file});
        QCOMPARE(together.errors, QByteArray());
        QCOMPARE(together.status, 0);
        QCOMPARE(together.output, alone.output);
        QVERIFY(!QImage(path(picture)).isNull());
        QVERIFY(read(QStringLiteral("one.mrd")).contains("transparency = 0.5"));
        QVERIFY(!read(QStringLiteral("two.stl")).isEmpty());
    }

    void anImageEditorWritesNoWarnings()
    {
        write(file, "#mrd 1.0\nFieldGallery \"gallery\" { sfImage = 1 1 3 0x365876 }\n");
        const Outcome outcome
            = run({QStringLiteral("--select=/gallery.sfImage"), QStringLiteral("--screenshot=window.png"), file});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
    }

    void everyExportIsWritten()
    {
        const Outcome outcome = run({QStringLiteral("--export=a.mrd"), QStringLiteral("--export=b.mrd"),
            QStringLiteral("--export=c.glb"), file});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        QVERIFY(!read(QStringLiteral("a.mrd")).isEmpty());
        QCOMPARE(read(QStringLiteral("a.mrd")), read(QStringLiteral("b.mrd")));
        QVERIFY(read(QStringLiteral("c.glb")).startsWith("glTF"));
    }

    void noPictureNeedsADisplay_data()
    {
        QTest::addColumn<QString>("environment");
        QTest::newRow("none") << QString();
        QTest::newRow("one that is gone") << QStringLiteral("DISPLAY=:4097");
        QTest::newRow("one of another kind that is gone") << QStringLiteral("WAYLAND_DISPLAY=nowhere");
        QTest::newRow("another platform") << QStringLiteral("QT_QPA_PLATFORM=nonsense");
    }
    void noPictureNeedsADisplay()
    {
        QFETCH(const QString, environment);
        for (const QStringList& arguments :
            {QStringList{QStringLiteral("--screenshot=window.png"), file}, {QStringLiteral("--list-extensions")},
                {QStringLiteral("--profile=All editors"), QStringLiteral("--list"), file}}) {
            const Outcome outcome = run(arguments, environment);
            QCOMPARE(outcome.errors, QByteArray());
            QCOMPARE(outcome.status, 0);
        }
        QVERIFY(!QImage(path(picture)).isNull());
    }

    void aWindowWithoutAReachableDisplayIsOneLine_data()
    {
        QTest::addColumn<QString>("environment");
        QTest::newRow("none") << QString();
        QTest::newRow("an empty name") << QStringLiteral("DISPLAY= WAYLAND_DISPLAY= QT_QPA_PLATFORM=");
        QTest::newRow("one that is gone") << QStringLiteral("DISPLAY=:4097");
        QTest::newRow("another platform") << QStringLiteral("QT_QPA_PLATFORM=nonsense");
    }
    void aWindowWithoutAReachableDisplayIsOneLine()
    {
        QFETCH(const QString, environment);
        for (const QStringList& arguments :
            {QStringList(file), QStringList(), {QStringLiteral("--set=/rig/paint.transparency=0.5"), file}}) {
            const Outcome outcome = run(arguments, environment);
            QCOMPARE(outcome.status, 1);
            QCOMPARE(outcome.errors.count('\n'), 1);
            QVERIFY2(outcome.errors.startsWith("orvane: ") && outcome.errors.contains("--screenshot"),
                outcome.errors.constData());
        }
    }

    void whatIsWrongInAnyRunIsOneLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("mentions");
        const auto add = [](const char* title, const char* option, const char* mentions) {
            QTest::addRow("%s", title) << QStringList(QString::fromUtf8(option)) << QByteArray(mentions);
        };
        add("profile that isn't there", "--profile=nosuch", "no profile \"nosuch\", only \"All editors\"");
        add("plug-in that isn't there", "--plugin=nosuch.so", "nosuch.so: there is no such file");
        add("plug-in that is none", "--plugin=rig.mrd", "it can't be loaded as a plug-in");
        add("plug-in that is a folder", "--plugin=.", "it is a folder");
        add("node that isn't there", "--get=/nosuch.name", "no child of that name");
        add("node instead of a field", "--get=/rig", "this is a node");
        add("value of another type", "--set=/rig/paint.transparency=red", "'red' isn't a value");
        add("selection that isn't there", "--select=/nosuch", "no child of that name");
        add("path that is none", "--select=rig", "rig");
        add("export in no folder", "--export=nowhere/a.mrd", "nowhere/a.mrd: No such file");
        add("export over a folder", "--export=folder.mrd", "folder.mrd: ");
        add("export without a format", "--export=model", "model: ");
        add("export with a format alone", "--export=.glb", ".glb: the name");
        add("export to the folder", "--export=.", ".: the name");
        add("export to what looks like a folder", "--export=folder/", "folder/: the name");
        add("export in a format that is only read", "--export=a.blend", "models of this format can't be written");
        add("line breaks", "--set=/rig/paint.transparency=a\nb", "'a␊b'");
        add("commands to the terminal", "--set=/rig/paint.transparency=\033[31m", "'␛[31m'");
    }
    void whatIsWrongInAnyRunIsOneLine()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, mentions);
        QVERIFY(QDir(folder()).mkdir(QStringLiteral("folder.mrd")));
        for (const QString& kind : {QStringLiteral("--list"), QStringLiteral("--screenshot=window.png")}) {
            const Outcome outcome = run(arguments + QStringList{kind, file});
            QCOMPARE(outcome.status, 1);
            QVERIFY2(outcome.errors.contains(mentions), outcome.errors.constData());
            QCOMPARE(outcome.errors.count('\n'), 1);
            QVERIFY2(outcome.errors.startsWith("orvane: "), outcome.errors.constData());
            QVERIFY(!QFile::exists(path(picture)));
            QCOMPARE(read(file), scene);
        }
    }

    void whereAPictureCanNotBeWrittenIsOneLine_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("mentions");
        QTest::newRow("no folder") << QStringLiteral("nowhere/a.png") << QByteArray("nowhere/a.png: No such file");
        QTest::newRow("a folder") << QStringLiteral("folder.png") << QByteArray("folder.png: is a directory");
        QTest::newRow("a model") << QStringLiteral("a.glb") << QByteArray("a.glb: the name of a picture ends in");
        QTest::newRow("no format") << QStringLiteral("a") << QByteArray("a: the name of a picture ends in");
        QTest::newRow("the scene") << file << QByteArray("rig.mrd: the name of a picture ends in");
    }
    void whereAPictureCanNotBeWrittenIsOneLine()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, mentions);
        QVERIFY(QDir(folder()).mkdir(QStringLiteral("folder.png")));
        const Outcome outcome = run({QStringLiteral("--screenshot"), name, file});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.startsWith("orvane: " + mentions), outcome.errors.constData());
        QCOMPARE(outcome.errors.count('\n'), 1);
        QCOMPARE(read(file), scene);
    }

    void anOldPictureStaysWhereTheNewOneCanNotBeWrittenWhole()
    {
        write(picture, "old");
        const Outcome outcome = run({QStringLiteral("--screenshot=window.png"), file}, QStringLiteral("ulimit -f 0;"));
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.errors, QByteArray("orvane: window.png: File too large\n"));
        QCOMPARE(read(picture), QByteArray("old"));
    }

    void aPictureBeyondTheLimitAtItsScaleIsRefused()
    {
        const Outcome outcome
            = run({QStringLiteral("--screenshot=window.png"), QStringLiteral("--size=4000x4000"), file},
                QStringLiteral("QT_SCALE_FACTOR=3"));
        QCOMPARE(outcome.status, 1);
        QCOMPARE(
            outcome.errors, QByteArray("orvane: The picture would have 12000x12000 pixels, which is too large.\n"));
    }

    void outputThatCanNotBeWrittenIsAFailure_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("help") << QStringList(QStringLiteral("--help"));
        QTest::newRow("version") << QStringList(QStringLiteral("--version"));
        QTest::newRow("extensions") << QStringList(QStringLiteral("--list-extensions"));
        QTest::newRow("value") << QStringList{QStringLiteral("--get=/rig/paint.transparency"), file};
        QTest::newRow("list beside a picture")
            << QStringList{QStringLiteral("--list"), QStringLiteral("--screenshot=window.png"), file};
    }
    void outputThatCanNotBeWrittenIsAFailure()
    {
        QFETCH(const QStringList, arguments);
        const Outcome full = run(arguments, QStringLiteral("exec >/dev/full;"));
        QCOMPARE(full.errors, QByteArray("orvane: standard output: No space left on device\n"));
        QCOMPARE(full.status, 1);
        const Outcome closed = run(arguments, QStringLiteral("exec >&-;"));
        QCOMPARE(closed.errors, QByteArray("orvane: standard output: Bad file descriptor\n"));
        QCOMPARE(closed.status, 1);
    }

    void namesThatLookLikeHtmlDontStopTheWindow_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("nested tables") << QByteArray("<table><tr><td>").repeated(4000);
        QTest::newRow("a table beyond all sizes")
            << QByteArray("<table width=100000000 border=100000000 cellpadding=100000000><tr><td>x");
        QTest::newRow("picture without end") << QByteArray("<img src=/dev/zero>");
    }
    void namesThatLookLikeHtmlDontStopTheWindow()
    {
        QFETCH(const QByteArray, name);
        // A mesh without positions, whose message goes to the console.
        write(file, "#mrd 1.0\nMesh \"" + name + "\" {}\n");
        const Outcome outcome = run({QStringLiteral("--screenshot=window.png"), file});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
    }

    void filesWhoseNamesAreNoTextAreReadAndWritten()
    {
        // The shell makes the names, since they can't be passed as text.
        const QStringList names{QStringLiteral(ORVANE_PROGRAM), QStringLiteral(MODEL_FOLDER "/crate.glb")};
        const Outcome outcome
            = runShell(QStringLiteral("set -e; x=$(printf 'a\\377\\200b%%41'); mkdir \"$x\"; cd \"$x\"\n"
                                      "cp ../rig.mrd \"$x.mrd\"; cp \"$1\" \"$x.glb\"\n"
                                      "\"$0\" --no-settings --get /rig/paint.transparency \"$x.mrd\"\n"
                                      "\"$0\" --no-settings --list \"$x.glb\" >list\n"
                                      "\"$0\" --no-settings --export \"new$x.mrd\" --export \"new$x.obj\" "
                                      "--screenshot \"new$x.png\" \"$PWD/$x.mrd\"\n"
                                      "test -s list; test -s \"new$x.mrd\"; test -s \"new$x.obj\"; "
                                      "test -s \"new$x.png\"; ls | wc -l; rm -r \"$PWD\""),
                names);
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(
            outcome.output, QByteArray("0.25\n7\n")); // two given, the list, and four written: a model is two files
        QCOMPARE(outcome.status, 0);
    }

    void aTextThatIsNoneIsRefused()
    {
        for (const char* const option : {"--get", "--set", "--select", "--profile", "--plugin"}) {
            const Outcome outcome = runShell(QStringLiteral("\"$0\" $1 \"$(printf '/rig/paint.name=\\377')\" rig.mrd"),
                {QStringLiteral(ORVANE_PROGRAM), QLatin1String(option)});
            QCOMPARE(outcome.errors, QByteArray("orvane: ") + option + " expects UTF-8.\n");
            QCOMPARE(outcome.status, 2);
        }
    }

    void helpStatesTheLargestSize()
    {
        const QByteArray help = run({QStringLiteral("--help")}).output.simplified();
        QVERIFY2(help.contains("at most 8192 a side and 33 million in all"), help.constData());
    }
};

QTEST_GUILESS_MAIN(TestCombinedRun)
#include "tst_CombinedRun.moc"
