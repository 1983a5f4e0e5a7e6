#include "endtoend/ProgramCase.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QByteArray oldScene = "#mrd 1.0\n"
                            "Group \"robot\" {\n"
                            "    Transform \"arm\" { translation = 1 2 3 }\n"
                            "    Material { ignored shininess = 0.5 }\n"
                            "    Mesh \"leg\" {}\n"
                            "}\n";
const QByteArray newScene = "#mrd 1.0\n"
                            "Group \"robot\" {\n"
                            "    Transform \"arm\" { translation = 1 2 4 }\n"
                            "    Material { shininess = 0.5 }\n"
                            "    PointLight \"<b>\\n\" {}\n"
                            "}\n";
const QByteArray differences = "added\t/robot/\"<b>\\n\"\t\tPointLight\n"
                               "value\t/robot/arm.translation\t1 2 3\t1 2 4\n"
                               "ignored\t/robot/Material[0].shininess\ttrue\tfalse\n"
                               "removed\t/robot/leg\tMesh\t\n";
const QByteArrayList jsonDifferences{
    "{\"kind\":\"added\",\"new\":\"PointLight\",\"nodes\":1,\"old\":null,"
    "\"path\":\"/robot/\\\"<b>\\\\n\\\"\"}",
    "{\"field\":\"translation\",\"kind\":\"value\",\"new\":\"1 2 4\",\"old\":\"1 2 3\","
    "\"path\":\"/robot/arm\",\"type\":\"SFVec3f\"}",
    "{\"field\":\"shininess\",\"kind\":\"ignored\",\"new\":false,\"old\":true,"
    "\"path\":\"/robot/Material[0]\",\"type\":\"SFFloat\"}",
    "{\"kind\":\"removed\",\"new\":null,\"nodes\":1,\"old\":\"Mesh\",\"path\":\"/robot/leg\"}",
};
const QString oldFile = QStringLiteral("old.mrd");
const QString newFile = QStringLiteral("new.mrd");
const QString diff = QStringLiteral("--diff");

} // namespace

// Comparing files on the command line, without a display.
class TestDiffRun : public ProgramCase {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        makeFolder();
        write(oldFile, oldScene);
        write(newFile, newScene);
    }

    void equalFilesPrintNothing()
    {
        write(newFile, "#mrd 1.0\n# The same with other blanks.\n" + oldScene.mid(9));
        const Outcome outcome = run({diff, oldFile, newFile});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.status, 0);
    }

    void differencesAreLines()
    {
        const Outcome outcome = run({diff, oldFile, newFile});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output, differences);
        QCOMPARE(outcome.status, 1);
        QCOMPARE(read(oldFile), oldScene);
        QCOMPARE(read(newFile), newScene);
    }

    void jsonIsOneObject()
    {
        const Outcome outcome = run({diff, QStringLiteral("--json"), oldFile, newFile});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 1);
        QJsonParseError error;
        const QJsonObject object = QJsonDocument::fromJson(outcome.output, &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(object.keys(),
            QStringList({QStringLiteral("counts"), QStringLiteral("differences"), QStringLiteral("equal"),
                QStringLiteral("new"), QStringLiteral("old"), QStringLiteral("version")}));
        QCOMPARE(object[QStringLiteral("version")].toInt(), 1);
        QCOMPARE(object[QStringLiteral("equal")], QJsonValue(false));
        QCOMPARE(object[QStringLiteral("old")].toString(), oldFile);
        QCOMPARE(object[QStringLiteral("new")].toString(), newFile);
        QCOMPARE(object[QStringLiteral("counts")][QStringLiteral("value")].toInt(), 1);
        QCOMPARE(object[QStringLiteral("counts")][QStringLiteral("moved")].toInt(-1), 0);
        const QJsonArray list = object[QStringLiteral("differences")].toArray();
        QCOMPARE(list.size(), jsonDifferences.size());
        const auto compact
            = [&list](int index) { return QJsonDocument(list[index].toObject()).toJson(QJsonDocument::Compact); };
        for (int i = 0; i < list.size(); ++i)
            QCOMPARE(compact(i), jsonDifferences[i]);
    }

    void jsonOfEqualFilesSaysSo()
    {
        const Outcome outcome = run({diff, QStringLiteral("--json"), oldFile, oldFile});
        QCOMPARE(outcome.status, 0);
        const QJsonObject object = QJsonDocument::fromJson(outcome.output).object();
        QCOMPARE(object[QStringLiteral("equal")], QJsonValue(true));
        QCOMPARE(object[QStringLiteral("differences")].toArray().size(), 0);
    }

    void longListsAreShortenedInTheLines()
    {
        QByteArray values = "0";
        for (int i = 1; i < 5000; ++i)
            values += ", " + QByteArray::number(i);
        write(oldFile, "#mrd 1.0\nMesh { indices = [" + values + "] }\n");
        write(newFile, "#mrd 1.0\nMesh { indices = [" + values + ", 1, 2] }\n");
        const Outcome outcome = run({diff, oldFile, newFile});
        QCOMPARE(outcome.output, QByteArray("value\t/Mesh[0].indices\t5000 values\t5002 values, from 5000: 1, 2\n"));
        QVERIFY(run({diff, QStringLiteral("--json"), oldFile, newFile}).output.contains(values));
    }

    void modelsAreComparedAsScenes()
    {
        const QString model = QStringLiteral(MODEL_FOLDER "/crate.glb");
        QCOMPARE(run({diff, model, model}).status, 0);
        const Outcome outcome = run({diff, oldFile, model});
        QCOMPARE(outcome.errors, QByteArray());
        QVERIFY(outcome.output.contains("removed\t/robot\t"));
        QCOMPARE(outcome.status, 1);
        // A model that is written as a scene is the same.
        QCOMPARE(run({QStringLiteral("--export=crate.mrd"), model}).status, 0);
        QCOMPARE(run({diff, model, QStringLiteral("crate.mrd")}).output, QByteArray());
    }

    void otherOptionsApplyToTheFirstFile()
    {
        const Outcome outcome = run({diff, QStringLiteral("--set=/robot/arm.translation=1 2 4"),
            QStringLiteral("--get=/robot/arm.translation"), oldFile, newFile});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output,
            QByteArray("1 2 4\n")
                + QByteArray(differences).replace("value\t/robot/arm.translation\t1 2 3\t1 2 4\n", ""));
        QCOMPARE(outcome.status, 1);
    }

    void aPictureIsTakenBesideTheDifferences()
    {
        const Outcome outcome = run({diff, QStringLiteral("--screenshot=window.png"), oldFile, newFile});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.output, differences);
        QCOMPARE(outcome.status, 1);
        QVERIFY(!QImage(path(QStringLiteral("window.png"))).isNull());
    }

    void whatIsWrongIsOneLineAndStatusTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("mentions");
        const auto row = [](const char* name, const QStringList& arguments, const char* mentions) {
            QTest::newRow(name) << arguments << QByteArray(mentions);
        };
        row("no file", {}, "--diff expects two files");
        row("one file", {oldFile}, "--diff expects two files");
        row("three files", {oldFile, newFile, oldFile}, "--diff expects two files");
        row("first file missing", {QStringLiteral("nosuch.mrd"), newFile}, "nosuch.mrd: No such file");
        row("second file missing", {oldFile, QStringLiteral("nosuch.mrd")}, "nosuch.mrd: No such file");
        row("second model missing", {oldFile, QStringLiteral("nosuch.glb")}, "nosuch.glb: No such file");
        row("broken file", {oldFile, QStringLiteral("broken.mrd")}, "broken.mrd:2:1: ");
        row("folder", {oldFile, QStringLiteral(".")}, "irectory");
        row("set of no field", {QStringLiteral("--set=/nosuch.x=1"), oldFile, newFile}, "no child of that name");
        row("unwritable export", {QStringLiteral("--export=nowhere/a.mrd"), oldFile, newFile}, "nowhere/a.mrd");
        row("a picture of no format", {QStringLiteral("--screenshot=picture"), oldFile, newFile}, "picture");
        row("a picture, and the second file missing",
            {QStringLiteral("--screenshot=window.png"), oldFile, QStringLiteral("nosuch.mrd")}, "No such file");
        row("a picture, and the first file missing",
            {QStringLiteral("--screenshot=window.png"), QStringLiteral("nosuch.mrd"), newFile}, "No such file");
    }

    void whatIsWrongIsOneLineAndStatusTwo()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, mentions);
        write(QStringLiteral("broken.mrd"), "#mrd 1.0\n{\n");
        const Outcome outcome = run(QStringList(diff) + arguments);
        QCOMPARE(outcome.status, 2);
        QVERIFY2(
            outcome.errors.startsWith("orvane: ") && outcome.errors.contains(mentions), outcome.errors.constData());
        QCOMPARE(outcome.errors.count('\n'), 1);
    }

    void outputThatCanNotBeWrittenIsAFailure()
    {
        for (const QStringList& arguments :
            {QStringList{diff, oldFile, newFile}, {diff, QStringLiteral("--json"), oldFile, oldFile}}) {
            const Outcome full = run(arguments, QStringLiteral("exec >/dev/full;"));
            QCOMPARE(full.errors, QByteArray("orvane: standard output: No space left on device\n"));
            QCOMPARE(full.status, 2);
        }
        QCOMPARE(run({diff, oldFile, newFile}, QStringLiteral("exec >&-;")).status, 2);
    }

    void groupsUsedTwiceInEachOtherAreComparedOnce()
    {
        const auto groups = [](const QByteArray& deepest) {
            QByteArray text = "#mrd 1.0\nGroup \"0\" { " + deepest + " }\n";
            for (int i = 1; i <= 40; ++i) {
                const QByteArray below = QByteArray::number(i - 1);
                text += "Group \"" + QByteArray::number(i) + "\" { use \"" + below + "\"; use \"" + below + "\" }\n";
            }
            return text;
        };
        write(oldFile, groups("Mesh {}"));
        write(newFile, groups("Mesh {}\nSwitch {}"));
        const Outcome outcome = run({diff, oldFile, newFile});
        QCOMPARE(outcome.output, QByteArray("added\t/0/Switch[0]\t\tSwitch\n"));
        QCOMPARE(outcome.status, 1);
    }
};

QTEST_GUILESS_MAIN(TestDiffRun)
#include "tst_DiffRun.moc"
