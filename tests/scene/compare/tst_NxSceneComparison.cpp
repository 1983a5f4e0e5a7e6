#include "scene/compare/Differences.h"

#include <QTest>

#include <chrono>

namespace {

/// Meshes without a name, each with another position.
std::string meshes(int first, int last)
{
    std::string text;
    for (int i = first; i <= last; ++i)
        text += "Mesh { positions = [" + std::to_string(i) + " 0 0] }\n";
    return text;
}

/// Groups, each of which holds the one before it twice.
std::string doubledGroups(int depth, const char* deepest)
{
    std::string text = "Group \"0\" { " + std::string(deepest) + " }\n";
    for (int i = 1; i <= depth; ++i) {
        const std::string below = std::to_string(i - 1);
        text += "Group \"" + std::to_string(i) + "\" { use \"" + below + "\"; use \"" + below + "\" }\n";
    }
    return text;
}

} // namespace

// What is reported for each kind of change, and for what isn't one.
class TestNxSceneComparison : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachChangeIsReportedAsWhatItIs_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<QStringList>("expected");
        const auto row
            = [](const char* name, const std::string& left, const std::string& right, const QStringList& expected) {
                  QTest::newRow(name) << QString::fromStdString(left) << QString::fromStdString(right) << expected;
              };
        const auto text = [](const char* utf8) { return QString::fromUtf8(utf8); };
        row("two empty scenes", "", "", {});
        row("a scene and none", "Group \"a\" { Mesh {} }", "", {text("removed /a: Group with 1 node in it -> ")});
        row("none and a scene", "", "Mesh {}", {text("added /Mesh[0]:  -> Mesh")});
        row("value", "Material \"a\" { transparency = 0.25 }", "Material \"a\" { transparency = 0.5 }",
            {text("value /a.transparency: 0.25 -> 0.5")});
        row("value and default", "Material \"a\" { transparency = 0.25 }", "Material \"a\" {}",
            {text("value /a.transparency: 0.25 -> 0")});
        row("zeros", "Material { transparency = 0 }", "Material { transparency = -0 }",
            {text("value /Material[0].transparency: 0 -> -0")});
        row("NaN", "Material { transparency = nan }", "Material { transparency = nan(0x1) }",
            {text("value /Material[0].transparency: nan -> nan(0x1)")});
        row("the same NaN", "Material { transparency = nan(0x1) }", "Material { transparency = nan(0x1) }", {});
        row("ignored", "Material \"a\" { ignored transparency = 0.25 }", "Material \"a\" { transparency = 0.25 }",
            {text("ignored /a.transparency: true -> false")});
        row("ignored and value", "Material \"a\" { ignored transparency = 0.25 }", "Material \"a\" {}",
            {text("value /a.transparency: 0.25 -> 0"), text("ignored /a.transparency: true -> false")});
        row("unknown field", "Mesh { x = 1 }", "Mesh { x = 2 }", {text("value /Mesh[0].x: 1 -> 2")});
        row("new unknown field", "Mesh { }", "Mesh { x = \"a\"}", {text("value /Mesh[0].x:  -> \"a\"")});
        row("lost unknown field", "Mesh { x = 1; y = 2 }", "Mesh { y = 2 }", {text("value /Mesh[0].x: 1 -> ")});
        row("ignored unknown field", "Mesh { x = 1 }", "Mesh { ignored x = 1 }",
            {text("ignored /Mesh[0].x: false -> true")});
        row("unknown node", "Widget \"w\" { x = 1 }", "Widget \"w\" { x = 2 }", {text("value /w.x: 1 -> 2")});
        row("class", "Transform \"a\" { translation = 1 2 3 }", "Group \"a\" {}",
            {text("class /a: Transform -> Group"), text("value /a.translation: 1 2 3 -> ")});
        row("class of an unknown node", "Widget \"w\" { x = 1 }", "Gadget \"w\" { x = 1 }",
            {text("class /w: Widget -> Gadget")});
        row("removed", "Mesh \"a\" {}\nMesh \"b\" {}", "Mesh \"b\" {}", {text("removed /a: Mesh -> ")});
        row("renamed", "Mesh \"a\" { positions = [1 2 3] }", "Mesh \"b\" { positions = [1 2 3] }",
            {text("renamed /a: \"a\" -> \"b\"")});
        row("named", "Mesh {}", "Mesh \"b\" {}", {text("renamed /Mesh[0]: \"\" -> \"b\"")});
        row("renamed and changed", "Group \"robot\" { Mesh \"arm\" {}; Mesh \"leg\" {} }",
            "Group \"machine\" { Mesh \"arm\" { positions = [1 2 3] }; Mesh \"leg\" {} }",
            {text("renamed /robot: \"robot\" -> \"machine\""), text("value /robot/arm.positions: [] -> [1 2 3]")});
        row("replaced", "Mesh \"a\" { positions = [1 2 3] }", "Mesh \"b\" { positions = [4 5 6] }",
            {text("added /b:  -> Mesh"), text("removed /a: Mesh -> ")});
        row("reordered", "Mesh \"a\" {}; Mesh \"b\" {}; Mesh \"c\" {}", "Mesh \"b\" {}; Mesh \"c\" {}; Mesh \"a\" {}",
            {text("reordered /a: 0 -> 2")});
        row("moved", "Group \"a\" { Mesh \"x\" {} }\nGroup \"b\" {}", "Group \"a\" {}\nGroup \"b\" { Mesh \"x\" {} }",
            {text("moved /a/x: /a/x -> /b/x")});
        row("moved and changed", "Group \"a\" { Mesh \"x\" {} }\nGroup \"b\" {}",
            "Group \"a\" {}\nGroup \"b\" { Mesh \"x\" { positions = [1 2 3] } }",
            {text("moved /a/x: /a/x -> /b/x"), text("value /a/x.positions: [] -> [1 2 3]")});
        row("moved without a name", "Group \"a\" { Mesh { positions = [1 2 3] } }\nGroup \"b\" {}",
            "Group \"a\" {}\nGroup \"b\" { Mesh { positions = [1 2 3] } }",
            {text("moved /a/Mesh[0]: /a/Mesh[0] -> /b/Mesh[0]")});
        row("ungrouped", "Group \"a\" { Mesh \"x\" {}; Mesh \"y\" {} }", "Mesh \"x\" {}\nMesh \"y\" {}",
            {text("removed /a: Group with 2 nodes in it -> "), text("moved /a/x: /a/x -> /x"),
                text("moved /a/y: /a/y -> /y")});
        row("swapped names", "Mesh \"a\" { positions = [1 2 3] }\nMesh \"b\" {}",
            "Mesh \"b\" { positions = [1 2 3] }\nMesh \"a\" {}",
            {text("reordered /a: 0 -> 1"), text("value /a.positions: [1 2 3] -> []"),
                text("value /b.positions: [] -> [1 2 3]")});
        row("line breaks and quotes", "Mesh \"a\\n<b>\\\"\" {}", "Mesh \"a\\n<b>\\\"\" { positions = [1 2 3] }",
            {text("value /\"a\\n<b>\\\"\".positions: [] -> [1 2 3]")});
    }

    void eachChangeIsReportedAsWhatItIs()
    {
        QFETCH(const QString, left);
        QFETCH(const QString, right);
        QFETCH(const QStringList, expected);
        QCOMPARE(Differences::lines(left.toStdString(), right.toStdString()), expected);
    }

    void sharingIsCompared_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<QStringList>("expected");
        const QString shared = QStringLiteral("Group \"a\" { Material \"m\" { shininess = 0.5 } }\n"
                                              "Group \"b\" { use \"m\" }\n");
        const auto copied = [](const char* value) {
            return QStringLiteral("Group \"a\" { Material \"m\" { shininess = 0.5 } }\n"
                                  "Group \"b\" { Material \"m\" { shininess = %1 } }\n")
                .arg(QLatin1String(value));
        };
        QTest::newRow("nothing") << shared << shared << QStringList();
        QTest::newRow("copied") << shared << copied("0.5")
                                << QStringList(QStringLiteral("sharing /b/m: same as /a/m -> a node of its own"));
        QTest::newRow("joined") << copied("0.5") << shared
                                << QStringList(QStringLiteral("sharing /b/m: a node of its own -> same as /a/m"));
        QTest::newRow("copied and changed")
            << shared << copied("0.75")
            << QStringList({QStringLiteral("sharing /b/m: same as /a/m -> a node of its own"),
                   QStringLiteral("value /b/m.shininess: 0.5 -> 0.75")});
        QTest::newRow("joined and changed")
            << copied("0.75") << shared
            << QStringList({QStringLiteral("sharing /b/m: a node of its own -> same as /a/m"),
                   QStringLiteral("value /b/m.shininess: 0.75 -> 0.5")});
        QTest::newRow("use removed") << shared << shared.section(u'\n', 0, 0) + QStringLiteral("\nGroup \"b\" {}\n")
                                     << QStringList(QStringLiteral("use removed /b/m: Material -> "));
        QTest::newRow("use added") << shared.section(u'\n', 0, 0) + QStringLiteral("\nGroup \"b\" {}\n") << shared
                                   << QStringList(QStringLiteral("use added /b/m:  -> Material"));
        QTest::newRow("use moved") << shared + QStringLiteral("Group \"c\" {}\n")
                                   << shared.section(u'\n', 0, 0)
                + QStringLiteral("\nGroup \"b\" {}\nGroup \"c\" { use \"m\" }\n")
                                   << QStringList(QStringLiteral("moved /b/m: /b/m -> /c/m"));
        QTest::newRow("shared node changed")
            << shared << QString(shared).replace(QStringLiteral("0.5"), QStringLiteral("0.75"))
            << QStringList(QStringLiteral("value /a/m.shininess: 0.5 -> 0.75"));
        QTest::newRow("used first in a group that was added")
            << shared
            << QStringLiteral("Group \"new\" { Material \"m\" { shininess = 0.5 } }\n"
                              "Group \"a\" { use \"m\" }\nGroup \"b\" { use \"m\" }\n")
            << QStringList(QStringLiteral("added /new:  -> Group with 1 node in it"));
        QTest::newRow("a copied group") << QStringLiteral(
            "Group \"a\" { Group \"g\" { Mesh \"x\" {}; Mesh \"y\" {} } }\nGroup \"b\" { use \"g\" }\n")
                                        << QStringLiteral(
                                               "Group \"a\" { Group \"g\" { Mesh \"x\" {}; Mesh \"y\" {} } }\n"
                                               "Group \"b\" { Group \"g\" { Mesh \"x\" {}; Mesh \"y\" {} } }\n")
                                        << QStringList(
                                               QStringLiteral("sharing /b/g: same as /a/g -> a node of its own"));
    }

    void sharingIsCompared()
    {
        QFETCH(const QString, left);
        QFETCH(const QString, right);
        QFETCH(const QStringList, expected);
        QCOMPARE(Differences::lines(left.toStdString(), right.toStdString()), expected);
    }

    void aSiblingThatComesOrGoesIsOneDifference_data()
    {
        QTest::addColumn<int>("place");
        QTest::newRow("first") << 0;
        QTest::newRow("middle") << 500;
        QTest::newRow("last") << 999;
    }

    void aSiblingThatComesOrGoesIsOneDifference()
    {
        QFETCH(const int, place);
        const std::string all = meshes(0, 999);
        const std::string others = meshes(0, place - 1) + meshes(place + 1, 999);
        const QString path = QStringLiteral("/Mesh[%1]").arg(place);
        QCOMPARE(Differences::lines(all, others), QStringList(QStringLiteral("removed %1: Mesh -> ").arg(path)));
        QCOMPARE(Differences::lines(others, all), QStringList(QStringLiteral("added %1:  -> Mesh").arg(path)));
    }

    void severalChangesAmongUnnamedSiblingsAreApart()
    {
        const std::string left = meshes(0, 999);
        const std::string right
            = meshes(1, 499) + "Mesh { positions = [0.5 0 0] }\n" + meshes(501, 999) + "Switch {}\n";
        QCOMPARE(Differences::lines(left, right),
            QStringList({QStringLiteral("added /Switch[0]:  -> Switch"), QStringLiteral("removed /Mesh[0]: Mesh -> "),
                QStringLiteral("value /Mesh[500].positions: [500 0 0] -> [0.5 0 0]")}));
    }

    void equalSiblingsAreNotReordered()
    {
        std::string left;
        std::string right;
        for (int i = 0; i < 100; ++i) {
            left += meshes(0, 9);
            right += i == 7 ? meshes(0, 3) + meshes(5, 9) : i == 80 ? meshes(0, 9) + "Mesh {}" : meshes(0, 9);
        }
        QCOMPARE(Differences::lines(left, right),
            QStringList({QStringLiteral("added /Mesh[809]:  -> Mesh"), QStringLiteral("removed /Mesh[74]: Mesh -> ")}));
    }

    void manyChangesAmongSiblingsAreFoundToo()
    {
        // More than the search for the fewest insertions and deletions tries.
        std::string right;
        for (int i = 0; i < 1000; i += 4)
            right += meshes(i, i + 2);
        const QStringList lines = Differences::lines(meshes(0, 999), right);
        QCOMPARE(lines.size(), 250);
        QCOMPARE(lines.filter(QStringLiteral("removed /Mesh[")).size(), 250);
        QCOMPARE(lines.back(), QStringLiteral("removed /Mesh[999]: Mesh -> "));
    }

    void groupsUsedTwiceInEachOtherAreVisitedOnce()
    {
        constexpr int depth = 40;
        const std::string left = doubledGroups(depth, "Mesh \"m\" {}");
        QCOMPARE(Differences::lines(left, left), QStringList());
        QCOMPARE(Differences::lines(left, doubledGroups(depth, "Mesh \"m\" { positions = [1 2 3] }")),
            QStringList(QStringLiteral("value /\"0\"/m.positions: [] -> [1 2 3]").remove(u'"')));
    }

    void scenesOfAnyDepthAreCompared()
    {
        const auto deep = [](const char* name) {
            NxRef<NxGroup> top(new NxGroup);
            top->setName(VbString(name));
            for (int i = 0; i < 100'000; ++i) {
                const NxRef<NxGroup> above(new NxGroup);
                above->addChild(top.get());
                top = above;
            }
            return top;
        };
        const NxSceneDifferences differences = Differences::of(deep("a"), deep("b"));
        QCOMPARE(differences.list().size(), std::size_t{1});
        QCOMPARE(differences.list().front().kind, NxSceneDifference::Kind::Renamed);
    }

    void slicesGiveTheSameResult()
    {
        const NxRef<NxGroup> left = SceneText::read(SceneText::file(meshes(0, 999)));
        const NxRef<NxGroup> right = SceneText::read(SceneText::file(meshes(5, 499) + meshes(501, 1003)));
        NxSceneComparison comparison(left, right);
        double progress = 0;
        int slices = 0;
        while (comparison.step(std::chrono::seconds(0)) == NxSceneComparison::State::Working) {
            QVERIFY(comparison.progress() >= progress && comparison.progress() <= 1);
            progress = comparison.progress();
            ++slices;
        }
        QVERIFY(slices > 20);
        QCOMPARE(comparison.progress(), 1.0);
        const NxSceneDifferences differences = comparison.takeDifferences();
        QCOMPARE(Differences::lines(differences), Differences::lines(left, right));
        QCOMPARE(differences.list().size(), std::size_t{10});
        QVERIFY(comparison.takeDifferences().list().empty());
    }

    void aSceneMayChangeBetweenSlices()
    {
        const std::string text = SceneText::file("Group \"a\" {\n" + meshes(0, 99) + "}\n");
        for (int slices = 0;; ++slices) {
            const NxRef<NxGroup> left = SceneText::read(text);
            const NxRef<NxGroup> right = SceneText::read(text);
            NxSceneComparison comparison(left, right);
            bool isDone = false;
            for (int i = 0; i < slices && !isDone; ++i)
                isDone = comparison.step(std::chrono::seconds(0)) == NxSceneComparison::State::Done;
            left->removeAllChildren();
            comparison.run();
            const QStringList lines = Differences::lines(comparison.takeDifferences());
            if (isDone) {
                QVERIFY(slices > 3);
                QCOMPARE(lines, QStringList());
                break;
            }
            QCOMPARE(lines, QStringList(QStringLiteral("added /a:  -> Group with 100 nodes in it")));
        }
    }

    void theResultOutlivesTheScenes()
    {
        NxSceneDifferences differences = Differences::of(SceneText::read(SceneText::file("Mesh \"a\" {}\nSwitch {}")),
            SceneText::read(SceneText::file("Mesh \"a\" { positions = [1 2 3] }")));
        QCOMPARE(Differences::lines(differences),
            QStringList({QStringLiteral("value /a.positions: [] -> [1 2 3]"),
                QStringLiteral("removed /Switch[0]: Switch -> ")}));
    }

    void longValuesAreShortened_data()
    {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<QString>("expectedLeft");
        QTest::addColumn<QString>("expectedRight");
        const auto row = [](const char* name, const std::string& left, const std::string& right,
                             const char* expectedLeft, const char* expectedRight) {
            QTest::newRow(name) << QString::fromStdString(left) << QString::fromStdString(right)
                                << QString::fromUtf8(expectedLeft) << QString::fromUtf8(expectedRight);
        };
        const auto list = [](const std::string& end) {
            std::string text = "Mesh { indices = [0";
            for (int i = 1; i < 1000; ++i)
                text += ", " + std::to_string(i);
            return text + end + "] }";
        };
        const auto title = [](const std::string& text) { return "Texture { filePath = \"" + text + "\" }"; };
        const std::string repeated(100'000, 'x');
        row("a short list", "Mesh { indices = [1, 2] }", "Mesh { indices = [1, 3] }", "[1, 2]", "[1, 3]");
        row("rows that differ", list(", -5, 6"), list(", -7, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15"),
            "1002 values, from 1000: -5, 6", "1011 values, from 1000: -7, 6, 7, 8, 9, 10, 11, …");
        row("more rows", list(""), list(", 1"), "1000 values", "1001 values, from 1000: 1");
        row("a long and a short list", list(""), "Mesh { indices = [0, 7] }",
            "1000 values, from 1: 1, 2, 3, 4, 5, 6, 7, 8, …", "[0, 7]");
        row("a text", title(repeated + "a" + repeated), title(repeated + "b"), "…xxxxxxxxxxxxxxxxaxxxxxxx…",
            "…xxxxxxxxxxxxxxxxb\"");
        row("whole characters", title(repeated + "äöüäöüäöüäöü"), title(repeated + "äöü"), "…xxxxxxxxxxäöüäöüä…",
            "…xxxxxxxxxxäöü\"");
        row("an unknown field", "Mesh { x = [" + repeated + "1] }", "Mesh { x = [" + repeated + "2] }",
            "…xxxxxxxxxxxxxxxx1]", "…xxxxxxxxxxxxxxxx2]");
    }

    void longValuesAreShortened()
    {
        QFETCH(const QString, left);
        QFETCH(const QString, right);
        constexpr std::size_t length = 24;
        const NxSceneDifferences differences = Differences::of(SceneText::read(SceneText::file(left.toStdString())),
            SceneText::read(SceneText::file(right.toStdString())));
        QCOMPARE(differences.list().size(), std::size_t{1});
        using Side = NxSceneDifferences::Side;
        const auto text = [&](Side side) {
            return QString::fromStdString(differences.text(differences.list().front(), side, length));
        };
        QTEST(text(Side::Left), "expectedLeft");
        QTEST(text(Side::Right), "expectedRight");
    }

    void aSceneIsEqualToItself()
    {
        const NxRef<NxGroup> scene = SceneText::read(SceneText::file(doubledGroups(3, "Mesh {}")));
        QCOMPARE(Differences::lines(scene, scene), QStringList());
    }

    void addedNodesNameTheirGroup()
    {
        const NxRef<NxGroup> left = SceneText::read(SceneText::file("Group \"a\" {}"));
        const NxRef<NxGroup> right = SceneText::read(SceneText::file("Group \"a\" { Mesh {} }\nMesh \"top\" {}"));
        const NxSceneDifferences differences = Differences::of(left, right);
        // The scene is the first group that is visited.
        QCOMPARE(Differences::lines(differences),
            QStringList({QStringLiteral("added /top:  -> Mesh"), QStringLiteral("added /a/Mesh[0]:  -> Mesh")}));
        QVERIFY(!differences.nodes()[0].group);
        QCOMPARE(differences.nodes()[1].group.get(), left->getChild(0));
    }
};

QTEST_GUILESS_MAIN(TestNxSceneComparison)
#include "tst_NxSceneComparison.moc"
