#include "endtoend/ProgramCase.h"

#include <QColor>
#include <QDir>
#include <QImage>

/// Pictures that the program writes of a scene, without a display.
class TestPictureRun : public ProgramCase {
    Q_OBJECT

private:
    [[nodiscard]] Outcome picture(const QStringList& arguments) const
    {
        return run(QStringList{QStringLiteral("--picture")} + arguments + QStringList{QStringLiteral("red.mrd")});
    }
    [[nodiscard]] QImage image(const char* name) const { return QImage(path(QLatin1String(name))); }

private Q_SLOTS:
    void init()
    {
        makeFolder();
        // A red square in the plane of x and y, and a camera that sees its upper right quarter alone.
        write(QStringLiteral("red.mrd"),
            "#mrd 1.0\nMaterial { ambientColor = 0 0 0; diffuseColor = 0 0 0; emissiveColor = 1 0 0 }\n"
            "Mesh \"square\" { positions = [-1 -1 0, 1 -1 0, 1 1 0, -1 1 0]; indices = [0, 1, 2, 0, 2, 3] }\n"
            "Transform \"up\" { translation = 0 1 0\n"
            "  OrthographicCamera \"camera\" { position = 1 0 5; height = 2 }\n}\n");
    }

    void aPictureIsTransparentAroundTheScene()
    {
        const Outcome outcome
            = picture({QStringLiteral("red.png"), QStringLiteral("--size"), QStringLiteral("320x240")});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        const QImage red = image("red.png");
        QCOMPARE(red.size(), QSize(320, 240));
        QCOMPARE(red.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(red.pixelColor(160, 120), QColor(Qt::red));
    }

    void theSizeMayBeLargerThanAnyWindow()
    {
        const Outcome outcome
            = picture({QStringLiteral("red.png"), QStringLiteral("--size"), QStringLiteral("9000x300")});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(image("red.png").size(), QSize(9000, 300));
        QCOMPARE(image("red.png").pixelColor(4500, 150), QColor(Qt::red));
    }

    void aCameraIsLookedThrough()
    {
        const Outcome outcome = picture(
            {QStringLiteral("red.jpg"), QStringLiteral("--size"), QStringLiteral("400x400"), QStringLiteral("--camera"),
                QStringLiteral("/up/camera"), QStringLiteral("--background"), QStringLiteral("#0000ff")});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        const QImage red = image("red.jpg");
        QVERIFY(red.pixelColor(100, 300).red() > 240 && red.pixelColor(100, 300).blue() < 15);
        for (const QPoint& place : {QPoint(100, 100), QPoint(300, 100), QPoint(300, 300)})
            QVERIFY(red.pixelColor(place).blue() > 240 && red.pixelColor(place).red() < 15);
    }

    void theSceneIsAsTheCommandLineMakesIt()
    {
        const Outcome outcome = picture({QStringLiteral("blue.png"), QStringLiteral("--size"),
            QStringLiteral("100x100"), QStringLiteral("--set"), QStringLiteral("/Material[0].emissiveColor=0 0 1")});
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(image("blue.png").pixelColor(50, 50), QColor(Qt::blue));
    }

    void aBookmarkIsLookedFrom()
    {
        QVERIFY(QDir(folder()).mkpath(QStringLiteral("config/orvane")));
        write(QStringLiteral("config/orvane/orvane.ini"),
            "[view]\nbookmarks=\"" + path(QStringLiteral("red.mrd")).toUtf8()
                + "\\n1 1 5 0 0 1 0 1 0.7853982 2 5 The corner\"\n");
        const QString home = QStringLiteral("XDG_CONFIG_HOME='%1'").arg(path(QStringLiteral("config")));
        const QStringList arguments{QStringLiteral(ORVANE_PROGRAM), QStringLiteral("--picture"),
            QStringLiteral("corner.png"), QStringLiteral("--size"), QStringLiteral("100x100"),
            QStringLiteral("--camera"), QStringLiteral("The corner"), QStringLiteral("red.mrd")};
        const Outcome outcome = runShell(home + QStringLiteral(" exec \"$0\" \"$@\""), arguments);
        QCOMPARE(outcome.errors, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(image("corner.png").pixelColor(25, 75), QColor(Qt::red));
        QCOMPARE(image("corner.png").pixelColor(75, 25).alpha(), 0);
        QStringList other = arguments;
        other[6] = QStringLiteral("The edge");
        const Outcome failed = runShell(home + QStringLiteral(" exec \"$0\" \"$@\""), other);
        QCOMPARE(failed.status, 1);
        QVERIFY2(failed.errors.contains("The edge") && failed.errors.contains("The corner"), failed.errors.constData());
    }

    void whatCantBeDoneIsOneLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("mentions");
        const QString png = QStringLiteral("red.png");
        QTest::newRow("folder that isn't there")
            << QStringList{QStringLiteral("no/red.png")} << 1 << QByteArray("no/red.png");
        QTest::newRow("unknown format") << QStringList{QStringLiteral("red.gltf")} << 1 << QByteArray(".png");
        QTest::newRow("format without transparency")
            << QStringList{QStringLiteral("red.jpg"), QStringLiteral("--background=transparent")} << 1
            << QByteArray("transparent");
        QTest::newRow("camera that isn't there")
            << QStringList{png, QStringLiteral("--camera=/lens")} << 1 << QByteArray("lens");
        QTest::newRow("no camera") << QStringList{png, QStringLiteral("--camera=/square")} << 1
                                   << QByteArray("no camera");
        QTest::newRow("the scene as a camera")
            << QStringList{png, QStringLiteral("--camera=/")} << 1 << QByteArray("no camera");
        QTest::newRow("no bookmark") << QStringList{png, QStringLiteral("--camera=front")} << 1 << QByteArray("front");
        QTest::newRow("color") << QStringList{png, QStringLiteral("--background=nice")} << 2 << QByteArray("nice");
        QTest::newRow("size") << QStringList{png, QStringLiteral("--size=10")} << 2 << QByteArray("WxH");
        QTest::newRow("side that is too long")
            << QStringList{png, QStringLiteral("--size=32768x1")} << 2 << QByteArray("32767");
        QTest::newRow("too many pixels") << QStringList{png, QStringLiteral("--size=20000x20000")} << 2
                                         << QByteArray("268 million");
    }
    void whatCantBeDoneIsOneLine()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const int, status);
        QFETCH(const QByteArray, mentions);
        const Outcome outcome = picture(arguments);
        QCOMPARE(outcome.status, status);
        QVERIFY2(outcome.errors.contains(mentions), outcome.errors.constData());
        QCOMPARE(outcome.errors.count('\n'), 1);
        QVERIFY(image("red.png").isNull());
    }

    void anOldPictureStaysWhenThereIsNoNewOne()
    {
        write(QStringLiteral("red.png"), "old");
        QCOMPARE(picture({QStringLiteral("red.png"), QStringLiteral("--camera=/lens")}).status, 1);
        QCOMPARE(read(QStringLiteral("red.png")), QByteArray("old"));
    }
};

QTEST_GUILESS_MAIN(TestPictureRun)
#include "tst_PictureRun.moc"
