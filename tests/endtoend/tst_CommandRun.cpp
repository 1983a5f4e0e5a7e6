#include "endtoend/ProgramCase.h"

#include <QDir>
#include <QImage>

namespace {

const QByteArray scene = "#mrd 1.0\n"
                         "\n"
                         "Group \"rig\" {\n"
                         "    Material \"paint\" {\n"
                         "        transparency = 0.25\n"
                         "    }\n"
                         "}\n";

// One line for each place of a mesh in a list of a scene: how many indices it has.
QByteArray indexCounts(const QByteArray& list)
{
    QByteArrayList places; // of what is listed, or listed further up
    for (const QByteArray& line : list.split('\n')) {
        const QByteArrayList parts = line.split('\t');
        if (parts.size() == 3 && parts[2].startsWith("same as ")) {
            const QByteArray first = parts[2].mid(8);
            const QByteArrayList before = places;
            for (const QByteArray& other : before) {
                if (other.startsWith(first + '/') || other.startsWith(first + '.'))
                    places += other;
            }
        } else if (line.contains(".indices\tMFInt32")) {
            places += line;
        }
    }
    QByteArray counts;
    for (const QByteArray& line : places)
        counts += QByteArray::number(line.count(',')) + '\n';
    return counts;
}

} // namespace

// The program on the command line, without a display: what it prints, what it writes and how it ends.
class TestCommandRun : public ProgramCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        makeFolder();
        write(QStringLiteral("rig.mrd"), scene);
    }

    void aValueIsPrinted()
    {
        const Outcome outcome = run(
            {QStringLiteral("--get"), QStringLiteral("/rig/paint.transparency"), path(QStringLiteral("rig.mrd"))});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output, QByteArray("0.25\n"));
        QCOMPARE(outcome.status, 0);
    }

    void aChangedSceneIsWrittenAndTheOriginalStays()
    {
        const Outcome outcome = run({QStringLiteral("--set"), QStringLiteral("/rig/paint.transparency=0.5"),
            QStringLiteral("--set"), QStringLiteral("/rig/paint.shininess=0.75"), QStringLiteral("--export"),
            path(QStringLiteral("new.mrd")), path(QStringLiteral("rig.mrd"))});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(read(QStringLiteral("rig.mrd")), scene);
        const QByteArray written = read(QStringLiteral("new.mrd"));
        QVERIFY(written.contains("transparency = 0.5"));
        QVERIFY(written.contains("shininess = 0.75"));
    }

    void anUnchangedSceneIsWrittenToTheSameBytes()
    {
        QCOMPARE(
            run({QStringLiteral("--export"), path(QStringLiteral("new.mrd")), path(QStringLiteral("rig.mrd"))}).status,
            0);
        QCOMPARE(read(QStringLiteral("new.mrd")), scene);
    }

    void theSameModelInTwoFormatsGivesTheSameTriangles()
    {
        QByteArray indices[2];
        const QString models[2]
            = {QStringLiteral(MODEL_FOLDER "/crate.glb"), QStringLiteral(MODEL_FOLDER "/crate.obj")};
        for (int i = 0; i < 2; ++i) {
            const Outcome outcome = run({QStringLiteral("--list"), models[i]});
            QCOMPARE(outcome.errors, QByteArray());
            QCOMPARE(outcome.status, 0);
            indices[i] = indexCounts(outcome.output);
        }
        QVERIFY(!indices[0].isEmpty());
        QCOMPARE(indices[0], indices[1]);
    }

    void theRosterIsListedInOrder()
    {
        const Outcome outcome = run({QStringLiteral("--list-extensions")});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        QVERIFY(outcome.output.contains("\tDvSFFloatWidget\tSFFloat\tSFFloat\n"));
        QVERIFY(outcome.output.contains("\tOrvNodeEditor\tNode Editor\tnone\n"));
        QVERIFY(outcome.output.contains("\tnodes::MaterialEditor\tMaterial\tMaterial\n"));
        QVERIFY(outcome.output.startsWith("1\t"));
    }

    void aNodeClassIsDescribed()
    {
        const Outcome outcome = run({QStringLiteral("--describe"), QStringLiteral("Switch")});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        QVERIFY2(outcome.output.startsWith("Switch (Group, Node)\nA group that shows one of its children"),
            outcome.output.constData());
        QVERIFY(outcome.output.contains("  whichChild  SFInt32  -1  at least -3  The index"));
    }

    void aNodeClassOfAPluginIsDescribed()
    {
        const QStringList arguments{QStringLiteral("--plugin"), QStringLiteral(SAMPLE_PLUGIN),
            QStringLiteral("--describe"), QStringLiteral("Compass")};
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        QVERIFY2(outcome.output.startsWith("Compass (Transform, Group, Node)\nA needle that points"),
            outcome.output.constData());
        QVERIFY2(outcome.output.contains("0 to 360  Where the needle points."), outcome.output.constData());
        // Without the plug-in there is no such class.
        QCOMPARE(run({QStringLiteral("--describe"), QStringLiteral("Compass")}).status, 1);
    }

    void anUnknownClassIsAnError()
    {
        const Outcome outcome = run({QStringLiteral("--describe"), QStringLiteral("Materail")});
        QCOMPARE(outcome.errors, QByteArray("orvane: There is no node class 'Materail'; did you mean Material?\n"));
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.status, 1);
    }

    void aPictureIsWrittenWithoutADisplay()
    {
        const Outcome outcome = run({QStringLiteral("--screenshot"), path(QStringLiteral("window.png")),
            QStringLiteral("--size"), QStringLiteral("900x600"), QStringLiteral("--select"),
            QStringLiteral("/rig/paint.transparency"), path(QStringLiteral("rig.mrd"))});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        const QImage picture(path(QStringLiteral("window.png")));
        QCOMPARE(picture.size(), QSize(900, 600));
    }

    void aPictureShowsTheSceneAtAnyScale_data()
    {
        QTest::addColumn<int>("scale");
        QTest::newRow("one") << 1;
        QTest::newRow("two") << 2;
    }
    void aPictureShowsTheSceneAtAnyScale()
    {
        QFETCH(const int, scale);
        write(QStringLiteral("red.mrd"),
            "#mrd 1.0\nMaterial { ambientColor = 0 0 0; diffuseColor = 0 0 0; emissiveColor = 1 0 0 }\n"
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0] }\n");
        const Outcome outcome
            = run({QStringLiteral("--screenshot"), path(QStringLiteral("red.png")), QStringLiteral("--size"),
                      QStringLiteral("900x600"), path(QStringLiteral("red.mrd"))},
                QStringLiteral("QT_SCALE_FACTOR=%1").arg(scale));
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        const QImage picture(path(QStringLiteral("red.png")));
        QCOMPARE(picture.size(), QSize(900, 600) * scale);
        int red = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                red += picture.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
        }
        QVERIFY2(red > 2000 * scale * scale, qPrintable(QString::number(red)));
    }

    void aPictureShowsTheImagesOfTextures_data()
    {
        QTest::addColumn<QString>("image");
        QTest::addColumn<QByteArray>("error");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("beside the scene") << QStringLiteral("images/green.png") << QByteArray() << true;
        QTest::newRow("outside its folder")
            << QStringLiteral("../green.png")
            << QByteArray("orvane: %1: The scene refers to images in this folder, outside its own. They aren't loaded; "
                          "open the scene in a window to allow it.\n")
            << false;
        QTest::newRow("a drawing that reads a device") << QStringLiteral("vector.png") << QByteArray() << false;
    }
    void aPictureShowsTheImagesOfTextures()
    {
        QFETCH(const QString, image);
        QFETCH(const QByteArray, error);
        QFETCH(const bool, isShown);
        QVERIFY(QDir(folder()).mkpath(QStringLiteral("scene/images")));
        QImage green(2, 2, QImage::Format_RGB32);
        green.fill(Qt::green);
        QVERIFY(green.save(path(QStringLiteral("scene/images/green.png"))));
        QVERIFY(green.save(path(QStringLiteral("green.png"))));
        write(QStringLiteral("scene/vector.png"),
            "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"9\" "
            "height=\"9\"><image width=\"9\" height=\"9\" xlink:href=\"/dev/zero\"/></svg>");
        write(QStringLiteral("scene/green.mrd"),
            "#mrd 1.0\nMaterial { ambientColor = 0 0 0; diffuseColor = 0 0 0; emissiveColor = 1 1 1 }\n"
            "Texture { filePath = \""
                + image.toUtf8()
                + "\" }\nMesh { positions = [0 0 0, 1 0 0, 0 1 0]\n"
                  "textureCoordinates = [0 0, 1 0, 0 1] }\n");
        const Outcome outcome = run({QStringLiteral("--screenshot"), path(QStringLiteral("green-view.png")),
            QStringLiteral("--size"), QStringLiteral("900x600"), path(QStringLiteral("scene/green.mrd"))});
        QCOMPARE(outcome.errors, QByteArray(error).replace("%1", folder().toLocal8Bit()));
        QCOMPARE(outcome.status, 0);
        const QImage picture(path(QStringLiteral("green-view.png")));
        int shown = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                shown += picture.pixelColor(x, y) == QColor(Qt::green) ? 1 : 0;
        }
        QVERIFY2((shown > 2000) == isShown, qPrintable(QString::number(shown)));
    }

    void badInputIsOneLineAndStatusOne_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("mentions");
        const QStringList list{QStringLiteral("--list")};
        QTest::newRow("missing file") << QByteArray() << list << QByteArray("No such file");
        QTest::newRow("cut off") << QByteArray("#mrd 1.0\nGroup {\n") << list << QByteArray("bad.mrd:3:1: ");
        QTest::newRow("another version") << QByteArray("#mrd 9.0\n") << list << QByteArray("bad.mrd:1:");
        QTest::newRow("no scene") << QByteArray("hello\n") << list << QByteArray("bad.mrd:1:1: ");
        QTest::newRow("invalid UTF-8") << QByteArray("#mrd 1.0\nGroup \"\xff\" {}\n") << list
                                       << QByteArray("bad.mrd:2:8: ");
        QTest::newRow("wrong type") << QByteArray("#mrd 1.0\nMaterial { transparency = red }\n") << list
                                    << QByteArray("bad.mrd:2:27: ");
        QTest::newRow("number out of range")
            << QByteArray("#mrd 1.0\nSwitch { whichChild = 3000000000 }\n") << list << QByteArray("bad.mrd:2:23: ");
        QTest::newRow("reference to nothing")
            << QByteArray("#mrd 1.0\nuse \"x\"\n") << list << QByteArray("bad.mrd:2:");
        QTest::newRow("cycle") << QByteArray("#mrd 1.0\nGroup \"x\" { use \"x\" }\n") << list
                               << QByteArray("bad.mrd:2:");
        QTest::newRow("no such node") << scene << QStringList{QStringLiteral("--get=/no.name")} << QByteArray("no");
        QTest::newRow("refused value") << scene
                                       << QStringList{QStringLiteral("--set=/rig/paint.transparency=red"),
                                              QStringLiteral("--list")}
                                       << QByteArray("'red'");
        QTest::newRow("unwritable target")
            << scene << QStringList{QStringLiteral("--export=/nowhere/out.mrd")} << QByteArray("/nowhere/out.mrd");
        QTest::newRow("unknown export format")
            << scene << QStringList{QStringLiteral("--export=/tmp/out.nothing")} << QByteArray("nothing");
        QTest::newRow("missing plug-in") << scene
                                         << QStringList{QStringLiteral("--plugin=/nowhere/p.so"),
                                                QStringLiteral("--list-extensions")}
                                         << QByteArray("/nowhere/p.so");
    }

    void badInputIsOneLineAndStatusOne()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, mentions);
        if (!content.isEmpty())
            write(QStringLiteral("bad.mrd"), content);
        const Outcome outcome = run(arguments + QStringList{path(QStringLiteral("bad.mrd"))});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(mentions), outcome.errors.constData());
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY(outcome.errors.startsWith("orvane: "));
        if (!content.isEmpty())
            QCOMPARE(read(QStringLiteral("bad.mrd")), content);
    }

    void aFolderIsNoScene()
    {
        QVERIFY(QDir(folder()).mkdir(QStringLiteral("folder.mrd")));
        const Outcome outcome = run({QStringLiteral("--list"), path(QStringLiteral("folder.mrd"))});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains("irectory"), outcome.errors.constData());
    }

    void aFileThatCanNotBeWrittenWholeStaysAsItWas()
    {
        const QString file = path(QStringLiteral("rig.mrd"));
        const Outcome outcome = run({QStringLiteral("--export=") + file, file}, QStringLiteral("ulimit -f 0;"));
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.errors, "orvane: " + QFile::encodeName(file) + ": File too large\n");
        QCOMPARE(read(QStringLiteral("rig.mrd")), scene);
        QCOMPARE(QDir(folder()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void aSceneOfGroupsUsedTwiceIsListedOnce()
    {
        QByteArray groups = "#mrd 1.0\nGroup \"0\" {}\n";
        for (int i = 1; i <= 40; ++i) {
            const QByteArray below = QByteArray::number(i - 1);
            groups += "Group \"" + QByteArray::number(i) + "\" { use \"" + below + "\"; use \"" + below + "\" }\n";
        }
        write(QStringLiteral("shared.mrd"), groups);
        const Outcome outcome = run({QStringLiteral("--list"), path(QStringLiteral("shared.mrd"))});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        // One for each group at the top, and two in each but one of them.
        QCOMPARE(outcome.output.count("\tGroup"), 41 + 2 * 40);
    }

    void outputThatCanNotBeWrittenIsReported()
    {
        const Outcome outcome
            = run({QStringLiteral("--list"), path(QStringLiteral("rig.mrd"))}, QStringLiteral("exec >/dev/full;"));
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.errors, QByteArray("orvane: standard output: No space left on device\n"));
    }

    void closedStandardStreamsReachNoFile()
    {
        const QString copy = path(QStringLiteral("copy.mrd"));
        const QStringList arguments{QStringLiteral("--list"), QStringLiteral("--export=") + copy};
        const QStringList rig{path(QStringLiteral("rig.mrd"))};
        const Outcome outcome = run(arguments + rig, QStringLiteral("exec <&- >&-;"));
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.errors, QByteArray("orvane: standard output: Bad file descriptor\n"));
        QCOMPARE(read(QStringLiteral("copy.mrd")), scene);
        QCOMPARE(
            run({QStringLiteral("--list"), copy + QStringLiteral("x")}, QStringLiteral("exec <&- 2>&-;")).status, 1);
    }

    void unusableArgumentsAreStatusTwo()
    {
        const Outcome outcome = run({QStringLiteral("--nonsense")});
        QCOMPARE(outcome.status, 2);
        QCOMPARE(outcome.errors.count('\n'), 1);
    }

    void aWindowWithoutADisplayIsRefusedClearly()
    {
        const Outcome outcome = run({path(QStringLiteral("rig.mrd"))});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains("display"), outcome.errors.constData());
    }

    void versionAndHelpArePrinted()
    {
        QVERIFY(run({QStringLiteral("--version")}).output.startsWith("orvane "));
        const QByteArray help = run({QStringLiteral("--help")}).output;
        QVERIFY2(help.startsWith("Usage: orvane [options] [file]"), help.constData());
        QVERIFY2(help.contains("--list-extensions"), help.constData());
    }
};

QTEST_GUILESS_MAIN(TestCommandRun)
#include "tst_CommandRun.moc"
