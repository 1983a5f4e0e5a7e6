#include "endtoend/ProgramCase.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

namespace {

const QByteArray triangle = "positions = [0 0 0, 1 0 0, 0 1 0]";
const QByteArray good = "#mrd 1.0\nGroup \"robot\" { Material {} Mesh \"arm\" { " + triangle + " } }\n";
const QByteArray warned
    = "#mrd 1.0\nGroup \"robot\" { Mesh \"arm\" { " + triangle + " } Material \"a\\tb\" {} Group \"empty\" {} }\n";
const QByteArray broken = "#mrd 1.0\nTexture \"wood\" { filePath = \"wood.png\" }\n"
                          "Group \"robot\" { Mesh \"arm\" { "
    + triangle + "; indices = [0, 1, 2, 0, 1, 9] } Material {} }\n";
const QByteArray brokenLines
    = "/wood.filePath\terror\tmissing-file\tThe file 'wood.png' doesn't exist.\n"
      "/robot/Material[0]\twarning\tunused-material\tNo mesh follows this material in its group, so it applies to "
      "nothing.\n"
      "/robot/arm.indices\terror\tindex-out-of-range\t1 of 6 indices are out of range, from 0 to 2; what they belong "
      "to "
      "isn't drawn.\n";
const QString file = QStringLiteral("robot.mrd");
const QString check = QStringLiteral("--check");
const QString json = QStringLiteral("--json");

} // namespace

// Checking files on the command line, without a display.
class TestCheckRun : public ProgramCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        makeFolder();
        write(file, broken);
    }

    void aGoodSceneHasNoLinesAndStatusZero()
    {
        write(file, good);
        const Outcome outcome = run({check, file});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.status, 0);
    }

    void imageFilesAreJudgedByTheirHeaders_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("line"); // without path and severity
        const QByteArray png = "\x89PNG\r\n\x1a\n" + QByteArray("\0\0\0\rIHDR", 8);
        const auto sized = [&png](quint32 width, quint32 height) {
            QByteArray numbers(8, '\0');
            qToBigEndian(width, numbers.data());
            qToBigEndian(height, numbers.data() + 4);
            return png + numbers + QByteArray(20, '\0');
        };
        const QByteArray jpeg = QByteArray("\xff\xd8\xff\xe0\x00\x04\x00\x00\xff\xff\xc2\x00\x11\x08", 14);
        QTest::newRow("usable") << sized(640, 480) << QByteArray();
        QTest::newRow("larger than GPUs take")
            << sized(20000, 10)
            << QByteArray(
                   "image-too-large\tIts image of 20000 by 10 pixels is drawn smaller; the GPU takes 16384 a side.");
        QTest::newRow("larger than is read")
            << sized(16000, 16000)
            << QByteArray(
                   "unreadable-file\tThe file 'wood.png' has 16000 by 16000 pixels; images of more than 67108864 "
                   "pixels, or 32767 a side, aren't read.");
        QTest::newRow("without a size")
            << png
            << QByteArray("unreadable-file\tThe file 'wood.png' is broken: it doesn't state the size of its image.");
        QTest::newRow("no image") << QByteArray("just a text")
                                  << QByteArray("unreadable-file\tThe file 'wood.png' is in none of the image formats "
                                                "that can be read.");
        QTest::newRow("another format than its name says")
            << jpeg + QByteArray("\x00\x10\x4e\x21\x03", 5)
            << QByteArray(
                   "image-too-large\tIts image of 20001 by 16 pixels is drawn smaller; the GPU takes 16384 a side.");
    }

    void imageFilesAreJudgedByTheirHeaders()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QByteArray, line);
        write(file, "#mrd 1.0\nTexture \"wood\" { filePath = \"wood.png\" }\nMesh \"arm\" { " + triangle + " }\n");
        write(QStringLiteral("wood.png"), bytes);
        const Outcome outcome = run({check, file});
        QCOMPARE(outcome.errors, QByteArray());
        if (line.isEmpty())
            QCOMPARE(outcome.output, QByteArray());
        else
            QVERIFY2(outcome.output.startsWith("/wood.filePath\t") && outcome.output.endsWith(line + '\n'),
                outcome.output.constData());
    }

    void warningsHaveStatusOne()
    {
        write(file, warned);
        const Outcome outcome = run({check, file});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output,
            QByteArray("/robot/\"a\\t"
                       "b\"\twarning\tunused-material\tNo mesh follows this material in its group, so it "
                       "applies to nothing.\n"
                       "/robot/empty\tinformation\tempty-group\tIt has no children.\n"));
        QCOMPARE(outcome.status, 1);
    }

    void informationAloneHasStatusZero()
    {
        write(file, "#mrd 1.0\nGroup {}\n");
        const Outcome outcome = run({check, file});
        QVERIFY(outcome.output.contains("\tinformation\tempty-group\t"));
        QCOMPARE(outcome.status, 0);
    }

    void errorsHaveStatusTwo()
    {
        const Outcome outcome = run({check, file});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output, brokenLines);
        QCOMPARE(outcome.status, 2);
        QCOMPARE(read(file), broken);
    }

    void whatCannotBeReadHasStatusThree_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no such file") << QStringList{check, QStringLiteral("none.mrd")};
        QTest::newRow("a broken scene") << QStringList{check, QStringLiteral("half.mrd")};
        QTest::newRow("a broken model") << QStringList{check, QStringLiteral("half.glb")};
        QTest::newRow("no file") << QStringList{check};
        QTest::newRow("two files") << QStringList{check, file, file};
        QTest::newRow("with a comparison") << QStringList{check, QStringLiteral("--diff"), file, file};
        QTest::newRow("a set that fails") << QStringList{check, QStringLiteral("--set=/none.x=1"), file};
    }

    void whatCannotBeReadHasStatusThree()
    {
        QFETCH(const QStringList, arguments);
        write(QStringLiteral("half.mrd"), "#mrd 1.0\nGroup {");
        write(QStringLiteral("half.glb"), "glTF");
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.status, 3);
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.errors.count('\n'), 1);
    }

    void outputThatCannotBeWrittenHasStatusThree()
    {
        QCOMPARE(run({check, file}, QStringLiteral("exec >/dev/full;")).status, 3);
    }

    void jsonIsOneObject()
    {
        const Outcome outcome = run({check, json, file});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 2);
        QJsonParseError error;
        const QJsonObject object = QJsonDocument::fromJson(outcome.output, &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(object[QStringLiteral("version")].toInt(), 1);
        QCOMPARE(object[QStringLiteral("file")].toString(), file);
        QCOMPARE(object[QStringLiteral("errors")].toInt(), 2);
        QCOMPARE(object[QStringLiteral("warnings")].toInt(), 1);
        QCOMPARE(object[QStringLiteral("information")].toInt(-1), 0);
        const QJsonArray problems = object[QStringLiteral("problems")].toArray();
        QCOMPARE(problems.size(), 3);
        QCOMPARE(QJsonDocument(problems[2].toObject()).toJson(QJsonDocument::Compact),
            QByteArray(
                "{\"class\":\"Mesh\",\"count\":1,\"field\":\"indices\",\"identifier\":\"index-out-of-range\","
                "\"mend\":\"Remove what they belong to\",\"path\":\"/robot/arm\",\"row\":5,\"severity\":\"error\","
                "\"text\":\"1 of 6 indices are out of range, from 0 to 2; what they belong to isn't drawn.\"}"));
    }

    void jsonOfAGoodSceneHasNoProblems()
    {
        write(file, good);
        const Outcome outcome = run({check, json, file});
        QCOMPARE(outcome.status, 0);
        const QJsonObject object = QJsonDocument::fromJson(outcome.output).object();
        QCOMPARE(object[QStringLiteral("errors")].toInt(-1), 0);
        QVERIFY(object[QStringLiteral("problems")].toArray().isEmpty());
    }

    void otherOptionsApplyBefore()
    {
        const Outcome outcome = run({check, QStringLiteral("--set=/robot/arm.indices=[0, 1, 2]"),
            QStringLiteral("--get=/robot/arm.indices"), QStringLiteral("--export=out.mrd"), file});
        QCOMPARE(outcome.errors, QByteArray());
        QVERIFY(outcome.output.startsWith("[0, 1, 2]\n/wood.filePath\t"));
        QVERIFY(!outcome.output.contains("index-out-of-range"));
        QCOMPARE(outcome.status, 2);
        QVERIFY(!read(QStringLiteral("out.mrd")).isEmpty());
    }

    void filesAreThoseOfTheFolderOfTheScene()
    {
        QVERIFY(QDir(folder()).mkdir(QStringLiteral("sub")));
        write(QStringLiteral("sub/robot.mrd"), broken);
        write(QStringLiteral("wood.png"), "P5 1 1 255 x");
        QVERIFY(run({check, QStringLiteral("sub/robot.mrd")}).output.contains("missing-file"));
        write(QStringLiteral("sub/wood.png"), "P5 1 1 255 x");
        QVERIFY(!run({check, QStringLiteral("sub/robot.mrd")}).output.contains("-file\t"));
        write(QStringLiteral("sub/wood.png"), "");
        QVERIFY(run({check, QStringLiteral("sub/robot.mrd")})
                    .output.contains("unreadable-file\tThe file 'wood.png' is empty."));
        QVERIFY(QFile::remove(path(QStringLiteral("sub/wood.png"))));
        QVERIFY(QDir(folder()).mkdir(QStringLiteral("sub/wood.png")));
        QVERIFY(run({check, QStringLiteral("sub/robot.mrd")})
                    .output.contains("unreadable-file\tThe file 'wood.png' isn't a regular file."));
    }

    void modelsAreCheckedAsScenes()
    {
        const Outcome outcome = run({check, QStringLiteral(MODEL_FOLDER "/crate.glb")});
        QCOMPARE(outcome.errors, QByteArray());
        QVERIFY2(outcome.status == 0 || outcome.status == 1, outcome.output.constData());
        QVERIFY(!outcome.output.contains("\terror\t"));
    }

    void aPictureIsTakenBesideTheProblems()
    {
        const Outcome outcome = run({check, QStringLiteral("--screenshot=window.png"), file});
        QCOMPARE(outcome.output, brokenLines);
        QCOMPARE(outcome.status, 2);
        QVERIFY(!read(QStringLiteral("window.png")).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCheckRun)
#include "tst_CheckRun.moc"
