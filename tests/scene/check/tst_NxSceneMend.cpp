#include "scene/check/ProblemLines.h"
#include "scene/journal/JournalRun.h"

#include "meridane/scene/check/NxSceneMend.h"

#include <QTest>

namespace {

QString textOf(NxGroup& scene)
{
    return QString::fromStdString(NxSceneWriter::toText(&scene));
}

} // namespace

// What each mend writes, and that it is taken back to the bit.
class TestNxSceneMend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachMendWritesWhatItSays_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const auto row = [](const char* name, const char* before, const char* after) {
            QTest::newRow(name) << QString::fromUtf8(before) << QString::fromUtf8(after);
        };
        row("not-finite", "Material { diffuseColor = nan 0.5 inf; transparency = -inf }\nMesh { positions = [0 0 0] }",
            "Material { diffuseColor = 0.8 0.5 0.8; transparency = 0 }\nMesh { positions = [0 0 0] }");
        row("not-finite in lists",
            "FieldGallery { mfFloat = [1, nan, 3]; mfRotation = [nan nan nan 1, 1 0 0 inf]; mfVec2f = [0 nan] }",
            "FieldGallery { mfFloat = [1, 0, 3]; mfRotation = [0 0 1 1, 1 0 0 0]; mfVec2f = [0 0] }");
        row("out-of-range", "PointLight { intensity = 7; attenuation = -1 0 1 }\nMesh { positions = [0 0 0] }",
            "PointLight { intensity = 1; attenuation = 0 0 1 }\nMesh { positions = [0 0 0] }");
        row("out-of-range without a limit", "PerspectiveCamera { nearDistance = 0 }",
            "PerspectiveCamera { nearDistance = 0 }");
        row("zero-axis", "Transform { rotation = 0 0 0 2; Mesh { positions = [0 0 0] } }",
            "Transform { Mesh { positions = [0 0 0] } }");
        row("zero-scale has none", "Transform { scaleFactor = 0 1 1; Mesh { positions = [0 0 0] } }",
            "Transform { scaleFactor = 0 1 1; Mesh { positions = [0 0 0] } }");
        row("position-not-finite",
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0, nan 2 inf, 0 0 0, 1 0 0, 0 0 5, 0 1 0, 7 7 8] }",
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0, 0 2 0, 0 0 0, 1 0 0, 0 0 5, 0 1 0, 7 7 8]; indices = [0, 1, 2, "
            "6, 7, 8] }");
        row("position-not-finite that nothing uses",
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0, nan 2 3]; indices = [0, 1, 2] }",
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0, 0 2 3]; indices = [0, 1, 2] }");
        row("position-not-finite and nothing else", "Mesh { positions = [nan 0 0, 0 0 0, 1 1 1] }",
            "Mesh { positions = [nan 0 0, 0 0 0, 1 1 1] }");
        row("index-out-of-range", "Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 1, 3, 0, 1, 2, -1, 0, 1] }",
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 1, 2] }");
        row("index-out-of-range and nothing else", "Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 1, 3] }",
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 1, 3] }");
        row("incomplete-primitive", "Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 1, 2, 1, 2] }",
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 1, 2] }");
        row("incomplete-primitive without indices", "Mesh { positions = [0 0 0, 1 0 0, 0 1 0, 5 5 5] }",
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0, 5 5 5]; indices = [0, 1, 2] }");
        row("ignored indices", "Mesh { positions = [0 0 0, 1 0 0, 0 1 0, 5 5 5]; ignored indices = [0, 1, 2] }",
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0, 5 5 5]; ignored indices = [0, 1, 2] }");
        row("zero-normal", "Mesh { positions = [0 0 0, 2 0 0, 0 2 0]; normals = [0 0 0, 0 1 0, 0 0 0] }",
            "Mesh { positions = [0 0 0, 2 0 0, 0 2 0]; normals = [0 0 1, 0 1 0, 0 0 1] }");
        row("zero-normal of points", "Mesh { positions = [0 0 0]; normals = [0 0 0]; primitive = POINTS }",
            "Mesh { positions = [0 0 0]; normals = [0 0 1]; primitive = POINTS }");
        row("normal-length", "Mesh { positions = [0 0 0, 2 0 0, 0 2 0]; normals = [0 0 4, 0 1.005 0, -0.5 0 0] }",
            "Mesh { positions = [0 0 0, 2 0 0, 0 2 0]; normals = [0 0 1, 0 1.005 0, -1 0 0] }");
        row("degenerate-faces", "Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 0, 1, 0, 1, 2, 2, 2, 2] }",
            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0]; indices = [0, 1, 2] }");
        row("switch-index", "Switch { whichChild = 4; Mesh { positions = [0 0 0] } }",
            "Switch { Mesh { positions = [0 0 0] } }");
        row("duplicate-name",
            "Group \"a\" { Mesh { positions = [0 0 0] } }\nGroup \"a\" { Mesh { positions = [0 0 0] } }\n"
            "Group \"a 2\" { Mesh { positions = [0 0 0] } }\nGroup \"a\" { Mesh { positions = [0 0 0] } }",
            "Group \"a\" { Mesh { positions = [0 0 0] } }\nGroup \"a 3\" { Mesh { positions = [0 0 0] } }\n"
            "Group \"a 2\" { Mesh { positions = [0 0 0] } }\nGroup \"a 4\" { Mesh { positions = [0 0 0] } }");
        row("unused-material", "Mesh { positions = [0 0 0] }\nMaterial \"x\" {}\nPerspectiveCamera {}",
            "Mesh { positions = [0 0 0] }\nPerspectiveCamera {}");
        row("unused-texture, unused-light and unused-complexity",
            "Mesh { positions = [0 0 0] }\nTexture \"x\" {}\nPointLight {}\nPerspectiveCamera {}\nComplexity {}",
            "Mesh { positions = [0 0 0] }\nPerspectiveCamera {}");
        row("a material that is used elsewhere",
            "Material \"x\" {}\nMesh { positions = [0 0 0] }\nGroup { Mesh { positions = [0 0 0] }; use \"x\" }",
            "Material \"x\" {}\nMesh { positions = [0 0 0] }\nGroup { Mesh { positions = [0 0 0] } }");
    }

    void eachMendWritesWhatItSays()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        const NxRef<NxGroup> scene = SceneText::read(SceneText::file(before.toStdString()));
        const NxRef<NxGroup> expected = SceneText::read(SceneText::file(after.toStdString()));
        QVERIFY(scene && expected);
        const QString old = textOf(*scene);
        NxSceneMend mend;
        mend.apply(ProblemLines::all(*scene));
        QCOMPARE(textOf(*scene), textOf(*expected));
        mend.undo();
        QCOMPARE(textOf(*scene), old);
        mend.redo();
        QCOMPARE(textOf(*scene), textOf(*expected));
    }

    void aJournalTakesEachMendBack_data() { eachMendWritesWhatItSays_data(); }
    void aJournalTakesEachMendBack()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        const NxRef<NxGroup> scene = SceneText::read(SceneText::file(before.toStdString()));
        const QString old = textOf(*scene);
        JournalRun run(*scene);
        NxSceneMend(NxSceneMend::Undo::ByJournal).apply(ProblemLines::all(*scene));
        meridane::JournalStep* const step = run.finish();
        QCOMPARE(step == nullptr, before == after);
        if (step == nullptr)
            return;
        step->undo();
        QCOMPARE(textOf(*scene), old);
    }

    void whatIsMendedIsNoProblemAnyMore_data() { eachMendWritesWhatItSays_data(); }
    void whatIsMendedIsNoProblemAnyMore()
    {
        QFETCH(const QString, before);
        const NxRef<NxGroup> scene = SceneText::read(SceneText::file(before.toStdString()));
        NxSceneMend(NxSceneMend::Undo::ByJournal).apply(ProblemLines::all(*scene));
        for (const NxSceneProblem& problem : ProblemLines::all(*scene))
            QVERIFY2(!problem.isMendable, problem.about().identifier.data());
    }

    void thousandsOfSiblingsAreMendedAtOnce()
    {
        std::string text;
        for (int i = 0; i < 3000; ++i)
            text += i % 3 == 0 ? "PerspectiveCamera {}\n" : "Material \"" + std::to_string(i / 4) + "\" {}\n";
        const NxRef<NxGroup> scene = SceneText::read(SceneText::file(text));
        const QString old = textOf(*scene);
        NxSceneMend mend;
        std::vector<NxSceneProblem> problems = ProblemLines::all(*scene);
        QCOMPARE(mend.apply(problems), problems.size());
        QCOMPARE(scene->getNumChildren(), 1000);
        QCOMPARE(ProblemLines::of(*scene), QStringList());
        mend.undo();
        QCOMPARE(textOf(*scene), old);
    }

    void aProblemThatIsGoneIsLeftAlone()
    {
        const NxRef<NxGroup> scene
            = SceneText::read(SceneText::file("Mesh { positions = [0 0 0]; normals = [0 0 5] }\nMaterial \"x\" "
                                              "{}\nGroup { Mesh { positions = [0 0 0] } }"));
        const std::vector<NxSceneProblem> problems = ProblemLines::all(*scene);
        QVERIFY(!problems.empty());
        NxSceneMend().apply(problems);
        const QString mended = textOf(*scene);
        QCOMPARE(NxSceneMend().apply(problems), std::size_t{0});
        QCOMPARE(textOf(*scene), mended);
    }
};

QTEST_APPLESS_MAIN(TestNxSceneMend)
#include "tst_NxSceneMend.moc"
