#include "scene/RandomScene.h"
#include "scene/check/ProblemLines.h"
#include "scene/journal/JournalRun.h"
#include "scene/journal/RandomChanges.h"

#include "meridane/scene/check/NxSceneMend.h"
#include "meridane/scene/journal/JournalListener.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <QTest>

#include <chrono>
#include <random>

namespace {

/// Passes what happens to a scene on to a check of it.
class Follower final : public meridane::JournalListener {
public:
    explicit Follower(NxSceneCheck& check)
        : m_check(check)
    {
    }

    void aboutToChange(const meridane::PlaceChange& change) noexcept override { m_check.aboutToChange(change); }

private:
    NxSceneCheck& m_check;
};

QStringList sorted(QStringList lines)
{
    lines.sort();
    return lines;
}

/// The problems in the lists, without asking the scene where they are.
QStringList listed(const NxSceneCheck& check, const NxGroup& scene)
{
    QStringList lines;
    for (std::size_t list = 0; list < check.listEnd(); ++list) {
        for (const NxSceneProblem& problem : check.list(list))
            lines += ProblemLines::line(problem, scene, check.placesOf(problem));
    }
    return sorted(lines);
}

} // namespace

// A check that follows the changes of a scene against a new one after each of them.
class TestFollowedChanges : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void randomChangesAndUndosAreFollowed_data()
    {
        QTest::addColumn<unsigned int>("seed");
        for (unsigned int seed = 1; seed <= 30; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void randomChangesAndUndosAreFollowed()
    {
        QFETCH(const unsigned int, seed);
        const NxRef<NxGroup> scene = makeRandomScene(seed);
        JournalRun run(*scene);
        NxSceneCheck check(scene);
        Follower follower(check);
        run.journal().addListener(follower);
        RandomChanges changes(*scene, seed);
        std::mt19937 random(seed);
        for (int round = 0; round < 40; ++round) {
            changes.makeSome();
            if (random() % 2 == 0)
                check.step(std::chrono::seconds(0)); // the changes come in the midst of its work
            run.finish();
            check.noteStep(true);
            if (random() % 3 == 0 && !run.steps().empty()) {
                run.journal().moveOver(run.steps().back().get(), &meridane::JournalStep::undo);
                run.steps().pop_back();
                changes.releaseNodes();
            }
            if (random() % 2 == 0)
                continue;
            check.run();
            QCOMPARE(sorted(ProblemLines::of(check, *scene)), sorted(ProblemLines::of(*scene)));
            QCOMPARE(listed(check, *scene).size(), ProblemLines::of(*scene).size());
        }
        run.journal().removeListener(follower);
    }

    void writesThatFollowInTheSameStepAreChecked()
    {
        const NxRef<NxGroup> scene
            = SceneText::read(SceneText::file("Material \"m\" {}\nMesh { positions = [0 0 0] }"));
        auto* const material = static_cast<NxMaterial*>(scene->getChild(0));
        static_cast<NxMesh*>(scene->getChild(1))->primitive.setValue(NxMesh::POINTS);
        JournalRun run(*scene);
        NxSceneCheck check(scene);
        Follower follower(check);
        run.journal().addListener(follower);
        check.run();
        material->transparency.setValue(0.5F);
        check.run();
        QCOMPARE(ProblemLines::of(check, *scene), QStringList());
        material->transparency.setValue(7); // isn't reported, since the step has a record
        check.noteStep(false);
        check.run();
        QCOMPARE(ProblemLines::of(check, *scene), QStringList({QStringLiteral("out-of-range /m.transparency")}));
        material->transparency.setValue(1);
        run.finish();
        check.noteStep(true);
        check.run();
        QCOMPARE(ProblemLines::of(check, *scene), QStringList());
        run.journal().removeListener(follower);
    }

    void anotherRoleOfATextureIsFollowed()
    {
        const NxRef<NxGroup> scene = SceneText::read(
            SceneText::file("Texture \"a\" { image = 1 1 1 255 }\nTexture \"b\" { image = 1 1 1 255; role = NORMAL }\n"
                            "Mesh { positions = [0 0 0, 1 0 0, 0 1 0] }"));
        auto* const texture = static_cast<NxTexture*>(scene->getChild(1));
        JournalRun run(*scene);
        NxSceneCheck check(scene);
        Follower follower(check);
        run.journal().addListener(follower);
        check.run();
        QCOMPARE(ProblemLines::of(check, *scene), QStringList());
        texture->role.setValue(NxTexture::COLOR);
        check.run();
        QCOMPARE(ProblemLines::of(check, *scene), QStringList({QStringLiteral("unused-texture /a")}));
        run.finish();
        check.noteStep(true);
        texture->role.setValue(NxTexture::METAL_ROUGHNESS);
        check.run();
        QCOMPARE(ProblemLines::of(check, *scene), QStringList());
        run.journal().removeListener(follower);
    }

    void onlyWhatHasChangedIsCheckedAgain()
    {
        std::string text;
        for (int i = 0; i < 500; ++i)
            text += "Mesh { positions = [0 0 " + std::to_string(i) + "] }\n"; // incomplete triangles
        const NxRef<NxGroup> scene = SceneText::read(SceneText::file(text));
        JournalRun run(*scene);
        NxSceneCheck check(scene);
        Follower follower(check);
        run.journal().addListener(follower);
        check.run();
        QCOMPARE(check.takeChangedLists().size(), std::size_t{500});
        static_cast<NxMesh*>(scene->getChild(7))->primitive.setValue(NxMesh::POINTS);
        check.run();
        QCOMPARE(check.takeChangedLists().size(), std::size_t{1});
        QCOMPARE(check.count(NxSeverity::Warning), std::size_t{499});
        scene->getChild(8)->setName("x");
        check.run();
        QCOMPARE(check.takeChangedLists(), std::vector<std::uint32_t>());
        run.journal().removeListener(follower);
    }

    void aMendIsFollowed()
    {
        const NxRef<NxGroup> scene = SceneText::read(
            SceneText::file("Group { Mesh \"a\" { positions = [0 0 0, 1 0 0, 0 1 0] }\nMaterial {} }\nMaterial {}"));
        JournalRun run(*scene);
        NxSceneCheck check(scene);
        Follower follower(check);
        run.journal().addListener(follower);
        check.run();
        QCOMPARE(check.count(NxSeverity::Warning), std::size_t{2});
        NxSceneMend(NxSceneMend::Undo::ByJournal).apply(ProblemLines::all(*scene));
        check.run();
        QCOMPARE(check.count(NxSeverity::Warning), std::size_t{0});
        run.finish()->undo();
        check.restart();
        check.run();
        QCOMPARE(check.count(NxSeverity::Warning), std::size_t{2});
        run.journal().removeListener(follower);
    }

    void filesThatAreFoundLaterAreCheckedThen()
    {
        const NxRef<NxGroup> scene = SceneText::read(
            SceneText::file("Texture \"t\" { filePath = \"a.png\" }\nMesh { positions = [0 0 0, 1 0 0, 0 1 0] }"));
        NxFileFinding finding{NxFileFinding::State::Unknown, {}};
        NxCheckOptions options;
        options.findFile = [&](const std::string& /*path*/, bool /*isImage*/) { return finding; };
        NxSceneCheck check(scene, options);
        check.run();
        QCOMPARE(ProblemLines::of(check, *scene), QStringList());
        finding.state = NxFileFinding::State::Missing;
        check.noteFilesFound();
        check.run();
        QCOMPARE(ProblemLines::of(check, *scene), QStringList({QStringLiteral("missing-file /t.filePath")}));
    }
};

QTEST_APPLESS_MAIN(TestFollowedChanges)
#include "tst_FollowedChanges.moc"
