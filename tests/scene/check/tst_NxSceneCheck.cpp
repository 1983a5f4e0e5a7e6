#include "scene/RandomScene.h"
#include "scene/check/ProblemLines.h"

#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QTest>

#include <chrono>

namespace {

constexpr const char* triangle = "positions = [0 0 0, 1 0 0, 0 1 0]; ";

NxCheckOptions withFiles()
{
    NxCheckOptions options;
    options.findFile = [](const std::string& path, bool isImage) {
        NxFileFinding finding;
        if (path == "missing.png")
            finding.state = NxFileFinding::State::Missing;
        else if (path == "broken.png")
            finding = {NxFileFinding::State::Unreadable, isImage ? "is no image" : "is no file"};
        return finding;
    };
    return options;
}

} // namespace

// Each check with scenes that have the problem, and with the closest ones that don't.
class TestNxSceneCheck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachProblemIsFoundWhereItIs_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char* name, const std::string& scene, const QStringList& expected) {
            QTest::newRow(name) << QString::fromStdString(scene) << expected;
        };
        const auto text = [](const char* utf8) { return QString::fromUtf8(utf8); };
        const auto mesh = [](const std::string& fields) { return "Mesh \"m\" { " + fields + " }\n"; };
        row("an empty scene", "", {});
        row("a mesh without a problem", mesh(triangle), {});

        row("infinite", "Transform \"t\" { translation = 0 inf nan; Mesh { positions = [0 0 0, 1 0 0, 0 1 0] } }",
            {text("not-finite /t.translation (2)")});
        row("NaN that is ignored",
            "Transform \"t\" { ignored translation = 0 0 nan; Mesh { positions = [0 0 0, 1 0 0, 0 1 0] } }", {});
        row("NaN in rows", mesh(std::string(triangle) + "textureCoordinates = [0 0, 1 nan, inf 0]"),
            {text("not-finite /m.textureCoordinates row 1 (2)")});
        row("NaN in a double", "FieldGallery \"g\" { mfDouble = [1, 2, nan]; sfDouble = inf }",
            {text("not-finite /g.sfDouble"), text("not-finite /g.mfDouble row 2")});
        row("out of range", "PointLight \"l\" { intensity = 2; attenuation = 1 -1 0 }\n" + mesh(triangle),
            {text("out-of-range /l.intensity"), text("out-of-range /l.attenuation")});
        row("limits of the range", "SpotLight \"l\" { intensity = 1; cutOffAngle = 1.5707964 }\n" + mesh(triangle), {});
        row("near distance 0", "PerspectiveCamera \"c\" { nearDistance = 0 }", {text("out-of-range /c.nearDistance")});

        row("zero scale", "Transform \"t\" { scaleFactor = 1 0 1; " + mesh(triangle) + "}",
            {text("zero-scale /t.scaleFactor")});
        row("small scale", "Transform \"t\" { scaleFactor = 1 1e-30 1; " + mesh(triangle) + "}", {});
        row("zero axis", "Transform \"t\" { rotation = 0 0 0 1; " + mesh(triangle) + "}",
            {text("zero-axis /t.rotation")});
        row("zero direction", "SpotLight \"l\" { direction = 0 0 0 }\n" + mesh(triangle),
            {text("zero-axis /l.direction")});
        row("zero axis of a camera", "OrthographicCamera \"c\" { orientation = 0 0 0 1 }",
            {text("zero-axis /c.orientation")});
        row("singular matrix",
            "MatrixTransform \"t\" { matrix = 1 0 0 0 0 1 0 0 0 0 0 0 0 0 0 1; " + mesh(triangle) + "}",
            {text("singular-matrix /t.matrix")});
        row("mirroring matrix",
            "MatrixTransform \"t\" { matrix = -1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1; " + mesh(triangle) + "}", {});

        row("no positions", mesh("indices = [0, 1, 2]"), {text("no-positions /m.positions")});
        row("NaN in positions", mesh("positions = [0 0 0, 1 0 0, 0 1 0, nan 0 0, 0 0 inf]; indices = [0, 1, 2]"),
            {text("position-not-finite /m.positions row 3 (2)")});
        row("indices out of range", mesh(std::string(triangle) + "indices = [0, 1, 2, 0, 1, 3, -1, 0, 1]"),
            {text("index-out-of-range /m.indices row 5 (2)")});
        row("incomplete triangle", mesh(std::string(triangle) + "indices = [0, 1, 2, 0, 1]"),
            {text("incomplete-primitive /m.indices row 3")});
        row("incomplete triangle without indices", mesh("positions = [0 0 0, 1 0 0, 0 1 0, 1 1 1]"),
            {text("incomplete-primitive /m.positions row 3")});
        row("incomplete line", mesh(std::string(triangle) + "primitive = LINES"),
            {text("incomplete-primitive /m.positions row 2")});
        row("points", mesh("positions = [0 0 0, 1 0 0]; primitive = POINTS"), {});
        row("counts",
            mesh(std::string(triangle) + "normals = [0 0 1]; colors = [1 0 0 1, 1 0 0 1]; "
                + "textureCoordinates = [0 0, 1 0, 1 1, 1 1]"),
            {text("normal-count /m.normals"), text("colour-count /m.colors (2)"),
                text("coordinate-count /m.textureCoordinates (4)")});
        row("one colour", mesh(std::string(triangle) + "colors = [1 0 0 1]"), {});
        row("normals", mesh(std::string(triangle) + "normals = [0 0 0, 0 0 1.005, 0 3 0]"),
            {text("zero-normal /m.normals row 0"), text("normal-length /m.normals row 2")});
        row("degenerate triangles", mesh(std::string(triangle) + "indices = [0, 1, 2, 0, 0, 1]"),
            {text("degenerate-faces /m.indices row 3")});
        row("a triangle without area", mesh("positions = [0 0 0, 1 1 1, 2 2 2]"),
            {text("degenerate-faces /m.positions row 0")});
        row("a line without length", mesh("positions = [0 0 0, 0 0 0]; primitive = LINES"),
            {text("degenerate-faces /m.positions row 0")});

        row("missing file", "Texture \"t\" { filePath = \"missing.png\" }\n" + mesh(triangle),
            {text("missing-file /t.filePath")});
        row("unreadable file", "Texture \"t\" { filePath = \"broken.png\" }\n" + mesh(triangle),
            {text("unreadable-file /t.filePath")});
        row("file that is there", "Texture \"t\" { filePath = \"there.png\" }\n" + mesh(triangle), {});
        row("missing file that isn't used",
            "Texture \"t\" { filePath = \"missing.png\"; image = 1 1 1 255 }\n" + mesh(triangle), {});
        row("any file path", "FieldGallery \"g\" { sfFilePathString = \"missing.png\" }",
            {text("missing-file /g.sfFilePathString")});
        row("no image", "Texture \"t\" {}\n" + mesh(triangle), {text("no-image /t.image")});

        row("camera distances", "PerspectiveCamera \"c\" { nearDistance = 5; farDistance = 5 }",
            {text("camera-distances /c.farDistance")});
        row("dark lights",
            "PointLight \"a\" { intensity = 0 }\nDirectionalLight \"b\" { color = 0 0 0 }\n"
            "PointLight \"c\" { attenuation = 0 0 0 }\nSpotLight \"d\" { cutOffAngle = 0 }\n"
            "PointLight \"e\" { on = false; intensity = 0 }\n"
                + mesh(triangle),
            {text("light-without-effect /a.intensity"), text("light-without-effect /b.color"),
                text("light-without-effect /c.attenuation"), text("light-without-effect /d.cutOffAngle")});
        const auto lamps = [](int count) {
            std::string lights;
            for (int i = 0; i < count; ++i)
                lights += "PointLight {}\n";
            return lights;
        };
        row("as many lights as are drawn", lamps(32) + mesh(triangle), {});
        row("too many lights", lamps(33) + mesh(triangle), {text("too-many-lights /m (33)")});
        row("too many lights from several groups",
            lamps(20) + "Group \"a\" { " + lamps(10) + "Group \"b\" { " + lamps(10) + mesh(triangle) + "} }",
            {text("too-many-lights /a (40)")});
        row("too many lights in a group, and more above",
            lamps(5) + "Group \"a\" { " + lamps(33) + mesh(triangle) + "}", {text("too-many-lights /a/m (33)")});
        row("lights that shine on other things",
            "Group \"a\" { " + lamps(20) + mesh(triangle) + "}\nGroup \"b\" { " + lamps(20) + mesh(triangle) + "}", {});
        row("lights behind a mesh", lamps(20) + mesh(triangle) + lamps(20) + "Mesh \"n\" { " + triangle + "}",
            {text("too-many-lights /n (40)")});
        row("switch index", "Switch \"s\" { whichChild = 1; " + mesh(triangle) + "}",
            {text("switch-index /s.whichChild")});
        row("switch none", "Switch \"s\" { whichChild = -1; " + mesh(triangle) + "}", {});
        row("switch all", "Switch \"s\" { whichChild = -3; " + mesh(triangle) + "}", {});

        row("same names", mesh(triangle) + mesh(triangle) + "Mesh \"n\" { " + triangle + "}" + mesh(triangle),
            {text("duplicate-name /Mesh[1] (3)")});
        row("same names in two groups", "Group \"a\" { " + mesh(triangle) + "}\nGroup \"b\" { " + mesh(triangle) + "}",
            {});
        row("a node used twice", mesh(triangle) + "use \"m\"", {});
        row("unused material", mesh(triangle) + "Material \"a\" {}", {text("unused-material /a")});
        row("replaced material", "Material \"a\" {}\nMaterial \"b\" {}\n" + mesh(triangle),
            {text("unused-material /a")});
        row("used material", "Material \"a\" {}\nGroup { Group { " + mesh(triangle) + "} }", {});
        row("material for a group with its own", "Material \"a\" {}\nGroup { Material \"b\" {} " + mesh(triangle) + "}",
            {text("unused-material /a")});
        row("material for a group with its own behind",
            "Material \"a\" {}\nGroup { Mesh { " + std::string(triangle) + "} Material \"b\" {} " + mesh(triangle)
                + "}",
            {});
        row("unused texture", "Group { " + mesh(triangle) + "Texture \"t\" { image = 1 1 1 255 } }",
            {text("unused-texture /Group[0]/t")});
        row("textures of different roles",
            "Texture \"a\" { image = 1 1 1 255 }\nTexture \"b\" { image = 1 1 1 255; role = NORMAL }\n"
            "Texture \"c\" { image = 1 1 1 255; role = METAL_ROUGHNESS }\nGroup { "
                + mesh(triangle) + "}",
            {});
        row("two textures of one role",
            "Texture \"a\" { image = 1 1 1 255; role = NORMAL }\nTexture \"b\" { image = 1 1 1 255 }\n"
            "Group { Texture \"c\" { image = 1 1 1 255; role = NORMAL } "
                + mesh(triangle) + "}",
            {text("unused-texture /a")});
        row("unused complexity", "Complexity \"c\" {}", {text("unused-complexity /c")});
        row("unused lights", mesh(triangle) + "PointLight \"a\" {}\nSpotLight \"b\" {}",
            {text("unused-light /a"), text("unused-light /b")});
        row("lights add up", "PointLight \"a\" {}\nGroup { SpotLight \"b\" {} " + mesh(triangle) + "}", {});
        row("a camera uses nothing", "PointLight \"a\" {}\nPerspectiveCamera {}", {text("unused-light /a")});
        row("what is unknown may use anything", "Material \"a\" {}\nWidget \"w\" { x = 1 }",
            {text("unknown-class /w")});
        row("materials of a switch", "Switch \"s\" { Material \"a\" {} }", {});
        row("empty group", "Group \"g\" {}", {text("empty-group /g")});
    }

    void eachProblemIsFoundWhereItIs()
    {
        QFETCH(const QString, scene);
        QFETCH(const QStringList, expected);
        const NxRef<NxGroup> read = SceneText::read(SceneText::file(scene.toStdString()));
        QVERIFY(read);
        QCOMPARE(ProblemLines::of(*read, withFiles()), expected);
    }

    void anImageIsTooLargeForMostGpusFromOneSideOn()
    {
        const NxRef<NxGroup> scene = SceneText::read(SceneText::file("Texture \"t\" {}\nMesh { positions = [0 0 0] }"));
        auto* const texture = static_cast<NxTexture*>(scene->getChild(0));
        NxCheckOptions options;
        options.maxImageSide = 8;
        texture->image.setValue(VbVec2s(9, 1), 1, std::vector<unsigned char>(9));
        QVERIFY(ProblemLines::of(*scene, options).contains(QStringLiteral("image-too-large /t.image")));
        texture->image.setValue(VbVec2s(8, 1), 1, std::vector<unsigned char>(8));
        QVERIFY(!ProblemLines::of(*scene, options).contains(QStringLiteral("image-too-large /t.image")));
    }

    void filesAreNotCheckedWithoutAFinder()
    {
        const NxRef<NxGroup> scene = SceneText::read(
            SceneText::file("Texture { filePath = \"missing.png\" }\nMesh { positions = [0 0 0, 1 0 0, 0 1 0] }"));
        QCOMPARE(ProblemLines::of(*scene), QStringList());
    }

    void manySiblingsWithOneProblemAreSummarised()
    {
        std::string text;
        for (int i = 0; i < 1000; ++i)
            text += "Material \"" + std::to_string(i / 2) + "\" {}\n";
        const NxRef<NxGroup> scene = SceneText::read(SceneText::file(text));
        const std::vector<NxSceneProblem> problems = ProblemLines::all(*scene);
        QCOMPARE(problems.size(), std::size_t{2 * 21});
        std::size_t unused = 0;
        for (const NxSceneProblem& problem : problems)
            unused += problem.kind == NxProblemKind::UnusedMaterial ? problem.count : 0;
        QCOMPARE(unused, std::size_t{1000});
        const auto last = std::find_if(problems.begin(), problems.end(), [](const NxSceneProblem& problem) {
            return problem.kind == NxProblemKind::UnusedMaterial && problem.places;
        });
        QVERIFY(last != problems.end());
        QCOMPARE(QString::fromStdString(last->sentence()),
            QStringLiteral("This material and 979 more of its group apply to nothing, since no mesh follows them."));
    }

    void aSharedNodeIsCheckedOnce()
    {
        std::string text = "Group \"0\" { Mesh \"m\" {} }\n";
        for (int i = 1; i <= 40; ++i) {
            const std::string below = std::to_string(i - 1);
            text += "Group \"" + std::to_string(i) + "\" { use \"" + below + "\"; use \"" + below + "\" }\n";
        }
        const NxRef<NxGroup> scene = SceneText::read(SceneText::file(text));
        QVERIFY(scene);
        QCOMPARE(ProblemLines::of(*scene), QStringList({QStringLiteral("no-positions /0/m.positions")}));
    }

    void everySentenceIsOneSentence()
    {
        for (std::size_t kind = 0; kind < meridane::problemKindCount; ++kind) {
            NxSceneProblem problem;
            problem.kind = static_cast<NxProblemKind>(kind);
            problem.count = 2;
            problem.total = 5;
            problem.limit = 3;
            problem.detail = "x";
            const QString sentence = QString::fromStdString(problem.sentence());
            QVERIFY2(sentence.size() > 10 && sentence.endsWith(u'.')
                    && (sentence.front().isUpper() || sentence.front().isDigit()),
                qPrintable(sentence));
            QCOMPARE(
                meridane::problemKind(problem.about().identifier).value_or(NxProblemKind::NotFinite), problem.kind);
        }
    }

    void sentencesHaveTheNumbers()
    {
        const NxRef<NxGroup> scene = SceneText::read(
            SceneText::file("Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 1, 2, 0, 1, 3] }"));
        const auto problems = ProblemLines::all(*scene);
        QCOMPARE(problems.size(), std::size_t{1});
        QCOMPARE(QString::fromStdString(problems.front().sentence()),
            QStringLiteral("1 of 6 indices are out of range, from 0 to 2; what they belong to isn't drawn."));
    }

    void slicesOfNoTimeFindTheSame()
    {
        for (unsigned int seed = 1; seed <= 20; ++seed) {
            const NxRef<NxGroup> scene = makeRandomScene(seed);
            NxSceneCheck check(scene);
            int slices = 0;
            while (check.step(std::chrono::seconds(0)) == NxSceneCheck::State::Working)
                ++slices;
            QCOMPARE(ProblemLines::of(check, *scene), ProblemLines::of(*scene));
            QVERIFY(check.nodeCount() > 0);
        }
    }

    void longListsAreCheckedInManySlices()
    {
        NxRef<NxGroup> scene(new NxGroup);
        auto* const mesh = new NxMesh;
        scene->addChild(mesh);
        std::vector<VbVec3f> positions(300000);
        for (std::size_t i = 0; i < positions.size(); ++i)
            positions[i] = VbVec3f(static_cast<float>(i % 3), static_cast<float>(i % 2), static_cast<float>(i));
        mesh->positions.setValues(std::move(positions));
        NxSceneCheck check(scene);
        int slices = 0;
        while (check.step(std::chrono::seconds(0)) == NxSceneCheck::State::Working)
            ++slices;
        QVERIFY2(slices > 20, qPrintable(QString::number(slices)));
    }
};

QTEST_APPLESS_MAIN(TestNxSceneCheck)
#include "tst_NxSceneCheck.moc"
