#include "app/AppScenes.h"

#include "orvane/app/command_line/CommandLine.h"
#include "orvane/app/command_line/FoundPlaces.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

/// What `--find` prints.
class TestFoundPlaces : public QObject {
    Q_OBJECT

private:
    static NxRef<NxGroup> scene()
    {
        return AppScenes::read("#mrd 1.0\n"
                               "Transform \"robot\" {\n"
                               "  translation = 1 2 3\n"
                               "  Material \"red / blue\" { transparency = 0.25 }\n"
                               "  Material { ignored transparency = 0.5 }\n"
                               "  Group \"arm\" { Mesh \"hand\" { } Mesh { } }\n"
                               "  Group \"other\" { use \"arm\" }\n"
                               "  PointLight \"lamp\" { }\n"
                               "}\n");
    }
    /// The lines that are printed, or the error.
    static QString printed(const QString& query)
    {
        const NxRef<NxGroup> opened = scene();
        QString text;
        QTextStream output(&text);
        const auto found = FoundPlaces(opened.get(), output).print(query);
        return found ? text.replace(u'\n', u'|') : found.error();
    }

private Q_SLOTS:
    void filesAreLookedForInTheFolderOfTheScene()
    {
        const QTemporaryDir folder;
        QFile image(folder.filePath(QStringLiteral("wood.png")));
        QVERIFY(image.open(QIODevice::WriteOnly) && image.write("image") > 0);
        image.close();
        const NxRef<NxGroup> opened = AppScenes::read("#mrd 1.0\n"
                                                      "Texture \"a\" { filePath = \"wood.png\" }\n"
                                                      "Texture \"b\" { filePath = \"stone.png\" }\n"
                                                      "Mesh { }\n");
        QString text;
        QTextStream output(&text);
        FoundPlaces places(opened.get(), output, folder.path());
        QVERIFY(places.print(QStringLiteral("missing")));
        QCOMPARE(text, QStringLiteral("/b.filePath\n"));
    }

    void pathsOfWhatMatchesArePrinted_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* query, const char* expected) {
            QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(expected);
        };
        row("t:Mesh", "/robot/arm/hand|/robot/arm/Mesh[1]|");
        row("t:Mesh hnd", "/robot/arm/hand|");
        row("t:Light", "/robot/lamp|");
        row("arm", "/robot/arm|");
        row("blue or lamp", "/robot/\"red / blue\"|/robot/lamp|");
        row("f:transparency changed", "/robot/\"red / blue\".transparency|/robot/Material[1].transparency|");
        row("f:transparency >0.3", "/robot/Material[1].transparency|");
        row("f:transparency >25%", "/robot/Material[1].transparency|");
        row("ignored", "/robot/Material[1].transparency|");
        row("t:Transform =3", "/robot.translation|");
        row("t:Mesh f:positions", "/robot/arm/hand.positions|/robot/arm/Mesh[1].positions|");
        row("unused", "/robot/\"red / blue\"|/robot/lamp|");
        row("t:Light unused", "/robot/lamp|");
        row("missing", "--find 'missing' matches nothing.");
        row("l\u00E1mp", "/robot/lamp|");
        row("wheel", "--find 'wheel' matches nothing.");
        row("(wheel",
            "--find '(wheel', character 1: A closing bracket is missing for this opening one. Put brackets to search "
            "for "
            "in quotes.");
        row("f:size >1,234.5",
            "--find 'f:size >1,234.5', character 9: Signs between thousands can't be read: write 1234.5 for 1,234.5.");
    }

    void pathsOfWhatMatchesArePrinted()
    {
        QFETCH(const QString, query);
        QFETCH(const QString, expected);
        QCOMPARE(printed(query), expected);
    }

    void thePathsLeadToWhatWasFound()
    {
        const NxRef<NxGroup> opened = scene();
        const QStringList paths = printed(QStringLiteral("changed or ignored")).split(u'|', Qt::SkipEmptyParts);
        QCOMPARE(paths.size(), 3);
        for (const QString& path : paths) {
            const auto target = NxScenePath::find(opened.get(), path.toStdString());
            QCOMPARE(target.error, std::string());
            QVERIFY(target.field != nullptr);
            QVERIFY(!target.field->isDefault() || target.field->isIgnored());
        }
    }

    void theCommandLineTakesQueries()
    {
        const auto parse = [](const QStringList& arguments) {
            return CommandLine::parse(QStringList{QStringLiteral("orvane")} + arguments);
        };
        const auto two = parse({QStringLiteral("--find"), QStringLiteral("t:Mesh"), QStringLiteral("--find=changed"),
            QStringLiteral("a.mrd")});
        QVERIFY(two);
        QCOMPARE(two.value().searches, QStringList({QStringLiteral("t:Mesh"), QStringLiteral("changed")}));
        QVERIFY(two.value().isBatch());
        QVERIFY(!two.value().needsExtensions());
        const QString wrong = parse({QStringLiteral("--find=/[/"), QStringLiteral("a.mrd")}).error();
        QCOMPARE(wrong, QStringLiteral("--find '/[/', character 1: The regular expression has a [ without ]."));
        QVERIFY(parse({QStringLiteral("--find=x")}).error().startsWith(QStringLiteral("A file is missing")));
        QCOMPARE(parse({QStringLiteral("--find="), QStringLiteral("a.mrd")}).error(),
            QStringLiteral("--find expects QUERY, not an empty text."));
        QVERIFY(!parse({QStringLiteral("--find=x"), QStringLiteral("--describe")}));
        QVERIFY(!parse({QStringLiteral("--find=x"), QStringLiteral("--watch"), QStringLiteral("a.mrd")}));
    }
};

QTEST_GUILESS_MAIN(TestFoundPlaces)
#include "tst_FoundPlaces.moc"
