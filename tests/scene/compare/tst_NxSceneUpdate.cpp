#include "scene/RandomScene.h"
#include "scene/SceneText.h"
#include "scene/compare/SceneEdits.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/compare/NxSceneUpdate.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/journal/Journal.h"

#include <QTest>

#include <chrono>

namespace {

NxRef<NxGroup> scene(std::string_view statements)
{
    return SceneText::read(SceneText::file(statements));
}

std::string textOf(const NxRef<NxGroup>& scene)
{
    return NxSceneWriter::toText(scene.get());
}

NxNode* nodeAt(const NxRef<NxGroup>& scene, const char* path)
{
    return NxScenePath::find(scene.get(), path).node();
}

NxSceneChanges changesOf(const NxRef<NxGroup>& scene, const NxRef<NxGroup>& other)
{
    NxSceneUpdate update(scene, other);
    update.run();
    return update.takeChanges();
}

/// Changes a scene to another one, back and forth, and undoes and redoes that. Empty, or what went wrong.
QString check(const NxRef<NxGroup>& scene, const NxRef<NxGroup>& other)
{
    const std::string before = textOf(scene);
    const std::string after = textOf(other);
    meridane::Journal journal(*scene);
    while (journal.run(std::chrono::hours(1))) { }
    journal.record();
    NxSceneChanges changes = changesOf(scene, other);
    changes.exchange();
    if (textOf(scene) != after)
        return QStringLiteral("not changed");
    auto step = journal.finishStep();
    if (!step != (before == after))
        return QStringLiteral("a step without a difference, or none with one");
    changes.exchange();
    if (textOf(scene) != before)
        return QStringLiteral("not taken back");
    journal.revertStep();
    if (textOf(scene) != after)
        return QStringLiteral("not changed again");
    if (!step)
        return {};
    step->undo();
    if (textOf(scene) != before)
        return QStringLiteral("not undone");
    step->redo();
    return textOf(scene) == after ? QString() : QStringLiteral("not redone");
}

} // namespace

// What makes a scene equal to another one.
class TestNxSceneUpdate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nodesThatCorrespondStayTheSame()
    {
        const auto before
            = scene("Group \"robot\" { Mesh \"arm\" {}; Mesh \"leg\" {}; Mesh {} }\nPointLight \"sun\" {}");
        const auto after = scene("PointLight \"sun\" {}\nGroup \"robot\" { Mesh {}; Mesh \"foot\" {}; Mesh \"arm\" { "
                                 "positions = [1 2 3] }; Group \"leg\" { Mesh {} } }\n");
        NxNode* const robot = nodeAt(before, "/robot");
        NxNode* const arm = nodeAt(before, "/robot/arm");
        NxNode* const leg = nodeAt(before, "/robot/leg");
        NxNode* const unnamed = nodeAt(before, "/robot/Mesh[2]");
        NxNode* const sun = nodeAt(before, "/sun");
        NxSceneChanges changes = changesOf(before, after);
        QVERIFY(!changes.isEmpty());
        NxNode* const newLeg = changes.replacementOf(leg);
        QVERIFY(newLeg != nullptr);
        QVERIFY(changes.replacementOf(arm) == nullptr);
        const std::string expected = textOf(after);
        changes.exchange();
        QCOMPARE(textOf(before), expected);
        QCOMPARE(nodeAt(before, "/robot"), robot);
        QCOMPARE(nodeAt(before, "/robot/arm"), arm);
        QCOMPARE(nodeAt(before, "/robot/leg"), newLeg);
        QCOMPARE(nodeAt(before, "/robot/Mesh[0]"), unnamed);
        QCOMPARE(nodeAt(before, "/sun"), sun);
    }

    void equalScenesNeedNoChange()
    {
        const auto before = makeRandomScene(7);
        QVERIFY(changesOf(before, SceneText::read(textOf(before))).isEmpty());
    }

    void groupsMayChangePlacesWithWhatIsInThem()
    {
        QCOMPARE(check(scene("Group \"a\" { Group \"b\" { Group \"c\" { Mesh \"m\" {} } } }"),
                     scene("Group \"c\" { Group \"b\" { Group \"a\" { Mesh \"m\" {} } } }")),
            QString());
    }

    void copiesAndUsesOfOneNodeBecomeEachOther()
    {
        const char* const copies = "Group \"a\" { Mesh \"m\" {} }\nGroup \"b\" { Mesh \"m\" {} }";
        const char* const uses = "Group \"a\" { Mesh \"m\" {} }\nGroup \"b\" { use \"m\" }";
        QCOMPARE(check(scene(copies), scene(uses)), QString());
        QCOMPARE(check(scene(uses), scene(copies)), QString());
    }

    void unknownFieldsAndClassesAreTakenOver()
    {
        QCOMPARE(check(scene("Mesh \"m\" { x = 1; positions = [1 2 3] }\nWidget \"w\" { Mesh {} }"),
                     scene("Mesh \"m\" { x = 2; positions = [1 2 3] }\nGadget \"w\" { y = 1; Mesh {} }")),
            QString());
    }

    void randomScenesBecomeEachOther()
    {
        constexpr unsigned int scenes = 300;
        for (unsigned int seed = 0; seed < scenes; ++seed) {
            const QString wrong = check(makeRandomScene(seed), makeRandomScene(seed + 1));
            QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("scene %1: %2").arg(seed).arg(wrong)));
        }
    }

    void randomEditsAreTakenOver()
    {
        constexpr unsigned int scenes = 300;
        for (unsigned int seed = 0; seed < scenes; ++seed) {
            SceneEdits edits(seed);
            const NxRef<NxGroup> before = SceneText::read(NxSceneWriter::toText(edits.scene()));
            edits.edit(1 + static_cast<int>(seed % 15));
            const QString wrong = check(before, SceneText::read(NxSceneWriter::toText(edits.scene())));
            QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("scene %1: %2").arg(seed).arg(wrong)));
        }
    }

    void itStartsAgainWhenTheStructureChanges()
    {
        const auto before = scene("Group \"a\" { Mesh \"m\" {} }");
        const auto after = scene("Group \"a\" { Mesh \"m\" {}; Mesh \"n\" {} }");
        NxSceneUpdate update(before, after);
        while (update.progress() < 1)
            QVERIFY(update.step(std::chrono::seconds(0)) == NxSceneUpdate::State::Working || update.progress() == 1);
        QVERIFY(!update.isOutdated());
        before->addChild(new NxGroup);
        QVERIFY(update.isOutdated());

        NxSceneUpdate again(before, after);
        QCOMPARE(again.step(std::chrono::seconds(0)), NxSceneUpdate::State::Working);
        before->addChild(new NxGroup);
        again.run();
        again.takeChanges().exchange();
        QCOMPARE(textOf(before), textOf(scene("Group \"a\" { Mesh \"m\" {}; Mesh \"n\" {} }")));
    }
};

QTEST_GUILESS_MAIN(TestNxSceneUpdate)
#include "tst_NxSceneUpdate.moc"
